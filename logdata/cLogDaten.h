#pragma once

#include <QDateTime>
#include <QString>
#include <functional>
#include <memory>

#include "app/ClassTrace.h"
#include "app/GuardedCallback.h"
#include "common/MessageBox.h"

class IComboBox;
class frmLogDaten;
class frmLogDatenDel;
class frmLogDatenDetails;

// The log data viewer: browses the agent's log entries of the service (kind 1) or of the
// jobs (kind 2), shows one entry in detail and steps through them, and deletes entries by
// period. One object lives for one command of the controller; its only way back to the
// controller is evInitCBOAuftragsart.
class cLogDaten {
  public:
    static inline const QString kKlasse = QStringLiteral("cLogDaten");

    // Class_Initialize and Class_Terminate.
    cLogDaten();
    ~cLogDaten();
    cLogDaten(const cLogDaten&) = delete;
    cLogDaten& operator=(const cLogDaten&) = delete;

    // Asks the controller to fill a combo box with the job types (key lDatenart selected,
    // bAlle: with the entry for all types under key 0).
    std::function<void(IComboBox& cboComboBox, long lDatenart, bool bAlle)> evInitCBOAuftragsart;

    // ---- Friend operations: for the controller only ------------------------------------

    void setLogKontext(long lMitId) { mlLogKontext = lMitId; }
    void setLogKontext(const QString& sMitarbeiter) { msLogKontext = sMitarbeiter; }
    void setJobNameLog(const QString& sJobName) { msJobNameLog = sJobName; }
    bool fbConstructor();
    // Releases the message object; the object is done with.
    void fDestructor();
    // Shows the browser of lLogArt (1 service, 2 jobs), of one job when lJobId > 0; returns
    // when it is closed.
    void fLogDatenShow(long lLogArt, long lJobId);
    // Closes the details and the browser. Harmless when they are closed already.
    void mLogDatenShowEnde();
    // Shows the deletion window of lLogArt, for the job lJobId when it is above 0; returns
    // when it is closed.
    void mLogdatenDeleteAuswahl(long lLogArt, long& lJobId);
    long mlMsgBox(const QString& sText, long lFlags, const QString& sTitel = {},
                  const QString& sHelpDatei = {}, long lKontext = 0);

  private:
    friend class LogDatenTestAccess;

    // ---- Browser (logdata/LogDatenBrowser.cpp) ---------------------------------------------

    void moFrmLogDaten_evSchliessen();
    void moFrmLogDaten_evShowDetail();

    // ---- Search (logdata/LogDatenBrowserSuche.cpp) --------------------------------------

    // The browser shows the entries of its kind with all the words typed, in the period.
    void moFrmLogDaten_evSuchen();
    // Empties the search's boxes; the browser shows its whole kind again.
    void moFrmLogDaten_evSucheBeenden();

    // ---- Deletion (logdata/LogDatenDelete.cpp) -------------------------------------------

    void moFrmLogDatenDel_evAktion(int Index);
    // False keeps the window open.
    bool mbLogDatenLoeschen();
    // A null date sets no bound on its side.
    // False when the statement failed (reported); the deletion window then stays open.
    bool mLogDatenDelete(long lJobArt, long lJobId, long lLogArt, const QDateTime& dtVon,
                         const QDateTime& dtBis, bool bMeldung);

    // ---- Details (logdata/LogDatenDetails.cpp) -------------------------------------------

    void mShowLogDatenDetails();
    void mLogDetailsErmitteln();
    void mLogDetailNav(const QString& sTool);
    void moFrmLogDatenDetails_evNavigation(const QString& sToolName);
    void moFrmLogDatenDetails_evSchliessen();

    ClassTrace moLog{kKlasse};
    long mlLoeschArt = 0;
    long mlLogArt = 0;
    long mlAktZeile = 0;
    // The job of the open browser, for the search's statement.
    long mlLogJobId = 0;
    QString msJobNameLog;
    long mlLogKontext = 0;
    QString msLogKontext;
    long mlLoeschJobId = 0;
    std::unique_ptr<MessageBoxOwner> moMeldungen;
    bool mbDestructor = false;
    std::shared_ptr<frmLogDaten> moFrmLogDaten;
    std::shared_ptr<frmLogDatenDel> moFrmLogDatenDel;
    std::shared_ptr<frmLogDatenDetails> moFrmLogDatenDetails;

    // Cuts the windows' events to this object when it goes away.
    LifeToken mLeben;
};
