#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "app/ClassTrace.h"
#include "app/GuardedCallback.h"
#include "app/RowConflict.h"
#include "app/cSchedule.h"
#include "app/cVerlaufFilter.h"
#include "common/Host.h"
#include "common/MessageBox.h"
#include "common/OptionFileReader.h"
#include "ui/windows/frmZeitIntervall.h"

class cLogDaten;
struct JobRecord;
class cProperties;
class frmBuchLog;
class frmBuchLogAbfrage;
class frmEigenschaften;
class frmOptTextDatName;
class frmOptTextDateien;
class frmPakete;
class frmVerlauf;
class frmVerlaufFilter;
class frmZeitplan;
class frmZeitplanCopy;
class IBrowser;
class IComboBox;
class ITool;
class WindowContract;

// One job selected in the list: its id, its name and the text of its job type as the list
// shows it.
struct Auftragsart {
    long lId = 0;
    QString sName;
    QString sArt;
};

// The controller: owns every window, reacts to their events, reads and writes the database
// and raises progress texts to the application object. Its member functions are defined in
// the folder of the subsystem they belong to; this header is grouped the same way.
class cAdminJob {
  public:
    // Class_Initialize and Class_Terminate.
    cAdminJob();
    ~cAdminJob();
    cAdminJob(const cAdminJob&) = delete;
    cAdminJob& operator=(const cAdminJob&) = delete;

    static inline const QString kKlasse = QStringLiteral("cAdminJob");

    // ---- Life cycle (app/AdminJobLifecycle.cpp) -----------------------------------------

    // Raised while the list loads: a hint, and the text that stands when it is done.
    std::function<void(const QString& sHinweis, const QString& sEndeHinweis)> evFortschritt;

    void fSetFrmPakete(std::shared_ptr<frmPakete> oForm);
    void fSetPakete(std::shared_ptr<IBrowser> oBrowser);
    void fSetProperties(std::shared_ptr<cProperties> oProperties);
    void fSetBasis(std::weak_ptr<ZPKyBasisAbruf> oBasis);
    bool gbInit();
    void fStart(bool& bRestart);
    void fShowHide(bool& bShow);
    void fSetFocus();
    void fDestructor();

    // The list's commands by tool name (joblist/AdminJobRouting.cpp).
    void fToolClick(const QString& sToolName);

  private:
    friend class AdminJobTestAccess;

    // ---- Life cycle, the list window's wiring (app/AdminJobLifecycle.cpp) ----------------

    // Cuts the list window's events to this controller, unloads it and lets go of it.
    void mFrmPaketeEntladen();
    void mFrmPaketeVerbinden();

    // ---- Shared services (app/AdminJobShared.cpp) ---------------------------------------

    long mlMsgBox(const QString& sText, long lFlags, const QString& sTitel = {},
                  const QString& sHelpDatei = {}, long lKontext = 0);
    // Before a save: what the user decides for the row the record set was opened on, when
    // it is no longer at the version lGelesen the window read (app/AdminJobRowConflict.cpp).
    // sWas is "Der Auftrag" or "Der Zeitplan"; the stored row names its last writer in
    // sMitarbeiterFeld.
    RowConflict::Entscheidung mZeilenstandFragen(CRecordset& oTL, bool bGefunden, long lGelesen,
                                                 const QString& sWas, const QString& sGelesenerName,
                                                 const QString& sMitarbeiterFeld);
    QString msMitarbeiterName(long& lMitId);
    void mRaiseFortschritt(const QString& sHinweis, const QString& sEndeHinweis);
    // The list's browser; raises "object required" when there is none.
    IBrowser& mPakete();

    // ---- Job list (joblist/AdminJobList.cpp, joblist/AdminJobListCommands.cpp) ----------

    bool mInitApplication();
    void mBrowserSpaltenInitialisieren();
    // The key columns and the flags of all columns, on the columns the browser knows: it
    // learns them at its first load, so the start marks them again after loading.
    void mSpaltenKennzeichnen();
    void mBrowserRefresh(bool bFlag);
    bool mbBrowserSelectItem(long lJobId);
    void mJobIdErmitteln(long& lId, QString& sName);
    QString msAuftragsartAktuell();
    QString msAuswahlBedingung();
    void mChangeAktivJob();
    void mLoescheJob();
    void mPaketBearbeiten(int iAktion);

    void moPakete_ToolClick(const QString& sTool);
    void moPakete_SelectionChanged();
    void moPakete_Open();
    void moPakete_KeyDown(int iKeyCode, int iShift);
    void moFrmPakete_evFrmPaketeCommandButtonClicked();
    void mofrmPakete_evAuftragKopieren();
    void moLogDaten_evInitCBOAuftragsart(IComboBox& cboComboBox, long lDatenart, bool bAlle);

    // ---- Commands of the properties window (joblist/AdminJobRouting.cpp) ----------------

    void mEigenschaftenTool(const QString& sTool);

    // ---- Menu and tool state (joblist/AdminJobMenuState.cpp) ----------------------------

    void mMenuStatus();
    void mEinfuegenStatus();
    void mMenuBarStatus(const QString& sTool, const QString& sBand);
    void mToolBarStatus(ITool* oTool);
    // Set one tool, and send the state on only when it changed.
    void mToolsSetzen(const QString& sTool, bool bEnabled);
    void mMenuSetzen(const QString& sTool, bool bEnabled);
    void mBandSetzen(const QString& sBand, const QString& sTool, bool bEnabled);

    // ---- Starting a job now (joblist/AdminJobStart.cpp) ---------------------------------

    void mJobStartenExe(long& lJobId);
    long mlScheduleIdErm(long lJobId);

    // ---- Properties window (joblist/AdminJobPropertiesWindow.cpp) -----------------------

    void mShowFRMPakete(long lJobId, const QString& sName);
    void mPaketNav(const QString& sTool);
    void mEigenschaftenSchliessen(bool bAbbrechen);

    // ---- Job definitions (jobs/AdminJobJobTypes.cpp, jobs/AdminJobEditor.cpp) -----------

    QString msGetAuftragsart(long lDatenArt);
    void mInitCBOAuftragsart(IComboBox& cboComboBox, std::uint8_t bytDatenart, bool bMitAlle);
    bool mbArchivJob();
    bool mbKestoDirekt();
    bool mbNivora();
    bool mbFirmaKanzlei();
    QString msMandNrErm(long lId);
    // The text of the selected job whose history is on show, "" when none matches.
    QString msAuftragsartDerListe();

    void mAuftragEinfuegen();
    void mPaketeCMDClick(int Index);

    // ---- Job persistence (jobs/AdminJobPersistence.cpp) ---------------------------------

    friend class JobPersistenceTestAccess;

    // Reads the job rec.lJobId into rec; false, with the defaults of a new job, when there is
    // no such row.
    bool mAuftragLesen(JobRecord& rec);
    // Inserts the job when rec.lJobId has no row, else updates it; gives back the id, the
    // two captions and the row's new version. A row read at rec.lZeilenversion that changed
    // or went meanwhile is written only after the user's yes.
    RowConflict::Speicherung mAuftragSpeichern(JobRecord& rec);
    QString msGetJobName(long lJobId);
    // Whether the job has its row; true when that cannot be read (reported).
    bool mbAuftragVorhanden(long lJobId);
    // Stamps the job mlJobId as changed now by the current user, unless another workstation
    // wrote it since the properties window read it.
    void mUpdateLetztAenderung();
    QString msGetLetzteAenderungText(const QDateTime& dtDatum, long lMitId);
    // Copies the schedules of the copied job to the job lJobIdNeu.
    void mZeitplanEinfuegen(long lJobIdNeu);

    std::uint8_t mbytDatenArt = 0;
    std::uint8_t mbytMandKanz = 0;

    // ---- Run history and log files (history/) ------------------------------------------

    friend class HistoryTestAccess;

    void mInitLogFileLinks();
    void mShowVerlauf(long lJobId, const QString& sJobName);
    void mInitGridVerlauf();
    void mFuelleGridVerlauf();
    QString msGetVerlaufFilterString();
    QString msGetZeiteinheit(long lArt);
    QString msGetVerlaufErfolgreichString(std::uint8_t byCode);
    void mShowFilter();
    void mShowFilterEigenschaften();
    void mInitCBO_ZeitWert();
    void mInitCBO_ZeitEinheit();
    void mInitCBO_VerlaufsTyp();
    void mFilterSpeichern();
    bool mbVerlaufImportdaten();
    void mloescheVerlauf();
    void mofrmVerlauf_evFrmVerlaufCMDButtonClicked(int Index);
    void mofrmFilter_evFrmFilterfCMDButtonClicked(int Index);
    // Link cells: a click marks, leaving the cell unmarks, a double click follows the mark.
    void moGridVerlauf_Click();
    void moGridVerlauf_LeaveCell();
    void moGridVerlauf_DblClick();

    void mShowBuLogFiles(long lDatenart);
    void mShowArcLogFiles(long lDatenart);
    void mShowBuLogFilesData(long lDatenart);
    void mInitGridBuLog();
    void mOpenLogFile();
    void mOpenLogFileBu();
    bool mbBuchProt(const QString& sDatei);
    void mofrmBuLog_evFrmBuLogCommandButtonClicked(int Index);

    std::unique_ptr<cVerlaufFilter> moVerlaufFilter;
    std::shared_ptr<frmVerlauf> mofrmVerlauf;
    class IGrid* moGridVerlauf = nullptr;
    std::shared_ptr<frmVerlaufFilter> mofrmFilter;
    std::shared_ptr<frmBuchLog> mofrmBuLog;
    class IGrid* moGridBuLog = nullptr;
    std::shared_ptr<frmBuchLogAbfrage> mofrmBuchLogAbfrage;
    QString msLogPfadAutoImport;
    QString msLogPfadJobAgent;
    QString msJobAgentName;

    // ---- Log data viewer (logdata/) ----------------------------------------------------

    void mLogdatenShowCls(long lLogArt, bool bLoeschen, long lJobId);

    // The viewer of the running command; empty between commands.
    std::shared_ptr<cLogDaten> moLogDaten;

    // ---- Forecast of runs (forecast/AdminJobForecastList.cpp) ---------------------------

    // Fills "Nächste Ausführungen" of the schedule dialog and the recurrence dialog, of
    // those that are open, from what stands in them.
    void mNaechsteAusfuehrungenZeigen();
    // Opens "Ausführungsplan" for all jobs (0) or for one; a job not saved yet has none.
    void mAusfuehrungsplanZeigen(long lJobId);

    // ---- Schedules (schedule/AdminJobSchedule.cpp, schedule/AdminJobScheduleSentence.cpp) --

    friend class ScheduleTestAccess;

    // "93000" -> "09:30:00"; empty stays empty.
    QString msGetTimeString(const QString& sZeit);
    // Fills moSchedule from the row with that key; the name is not read. No row, no change.
    void mSetzeScheduleObjektAusDB(std::int32_t lScheduleId);
    // The defaults of a new schedule; the name counts the rows of the schedule grid, fixed
    // header row included.
    void mSetDefaultIntervallZeitplan(long lZeilenGrdZeitplan);
    void mInitZeitplan();
    // For a schedule that turns to repeating with no recurrence on show: the fixed text goes
    // into the dialog's lblLabel(0), and moSchedule gets the defaults.
    void mShowZeitplanIntervall(class ILabel& lblLabel0, long lZeilenGrdZeitplan);

    // The schedule as one German sentence, and its pieces.
    QString msGetIntervallString();
    QString msGetWochentageString(std::int32_t lWochentage);
    QString msStelleWochentag(std::int32_t lRelativ);
    QString msWochentagRelativ(std::int32_t lWochentag);

    // The schedule being looked at or edited; empty between the dialogs.
    std::unique_ptr<cSchedule> moSchedule;

    // ---- Members shared by the subsystems ----------------------------------------------

    ClassTrace moTrace{kKlasse};
    MessageBoxOwner moMeldungen{kKlasse};
    std::weak_ptr<ZPKyBasisAbruf> moBasis;
    std::shared_ptr<cProperties> moProperties;

    long mlJobId = 0;
    QString msJobName;
    // The versions of the rows the properties window and the schedule dialog read.
    long mlAuftragZeilenversion = RowConflict::kNichtGelesen;
    long mlZeitplanZeilenversion = RowConflict::kNichtGelesen;
    QString msZeitplanGelesen;
    long mlZeitplanId = 0;
    bool mbInitEigenschaften = false;
    long mlJobIdListe = 0;
    bool mbBackupGefragt = false;
    long mlJobIdKopiert = 0;
    std::vector<Auftragsart> maAuftragsarten;
    long mlAuftragMitarbeiter = 0;
    QString msJobNamen;
    long mlFraImportHoehe = 0;
    long mlJobZeile = 0;
    std::uint8_t mbytAuftragMandKanz = 0;
    QString msAuftragMandNr;
    long mlVorgabe = 0;
    long mlGrau = 0;
    bool mbMitNivora = false;

    // ---- Job editor (jobs/AdminJobEditor*.cpp, joblist/AdminJobPropertiesWindow.cpp) ----

    friend class EditorTestAccess;

    void mAktuFrmPakete(long lJobId);
    void mSetFormCaption(const QString& sName);
    // Hands the editor's events to this controller, or cuts them when it goes.
    void mEigenschaftenVerbinden();
    void mEigenschaftenTrennen();
    void mShowJobEigenschaften();
    void mInitCBODaten(std::uint8_t bytDatenArt);
    void mInitCBO_MandKanz(std::uint8_t bytKey);
    void mEigenschaftenGeaendert();
    // False when the job could not be written; the window then keeps what the user typed,
    // or shows the stored job when the user chose to drop the input.
    bool mEigenschaftenSpeichern(bool bUebernehmen);
    // Fills the properties window from the table again, the input dropped.
    void mEigenschaftenNeuLesen();
    // The schedule of the current row of the schedule grid, when a schedule row is current.
    void mZeitplanDerZeileBearbeiten();

    void mofrmEigenschaften_evFrmEigenschaftenCommandButtonClicked(int Index);
    void mofrmEigenschaften_evZeitplanEdit(int lRow);
    void mofrmEigenschaften_evFrmEigenschaftenComboBoxClicked(int Index);
    void mofrmEigenschaften_evCTLMandantChange();
    void mofrmEigenschaften_evGeaendert();
    void mofrmEigenschaften_evImportfileChanged();
    void mofrmEigenschaften_evToolClick(const QString& sTool);
    void mofrmEigenschaften_evOptDateiAuswaehlen(int Index);
    void mofrmEigenschaften_evMitFremdformat();

    // The schedule dialog, and the dialog that copies a schedule to other jobs
    // (schedule/AdminJobScheduleCopy.cpp).
    void mShowFRMZeitplanEigenschaften(long lZeitplanId, const QString& sName);
    void mShowZeitPlanKopieren(long lZeitplanId, const QString& sName);

    // (owner: panels+checks)
    void mDatenart(std::uint8_t bytDatenArt);
    void mMandKanz(std::uint8_t bytMandKanz);
    bool mbCheckEigenschaften();
    void mChangeMitFremdformat();
    void mShowFileSystemPfad(int Index);
    void mMappingDateiAuswaehlen();
    // (owner: schedules)
    void mInitGridZeitplan();
    void mFuelleGridZeitplan();
    void mLoescheZeitplan();
    // (owner: files+doctypes)
    void mInitCBO_NivoraDaten(long& lKey);
    void mNivoraDaten(long lKey);
    void mInitGRD_Belegarten();
    void mFillBelegGrid(const QString& sBelegarten);
    QString msGetBelegarten();
    void mofrmEigenschaften_evGrdBelegAfterEdit(int lRow);
    void mOptDateiAuswaehlen(int Index);
    void mOptDateienSetzen(const QString& sSkriptVorher);
    long mlCheckImportSkript(const QString& sSkript);

    long mlMandantId = 0;
    // The third field of a text import's Zusatzinfo: the chosen text files.
    QString msTextDateien;
    // The editor's schedule grid while the editor is open (owner: schedules).
    class IGrid* moGridZeitplan = nullptr;

    // ---- Job-type panels and validation (jobs/AdminJobPanels*.cpp, AdminJobValidation*) --

    friend class PanelsTestAccess;

    // The show and hide of one panel: visible, and its fields enabled and in the tab order,
    // by the flag.
    void mSetFraBuchungen(bool bShow);
    // The directory frame stands when either flag is set; its fields follow bEnable.
    void mSetFraImport(bool bEnable, bool bFrame);
    void mSetFraScanDokumente(bool bShow);
    void mSetFraNivora(bool bShow);
    void mSetPicBelegarten(bool bShow);
    void mSetFraTxtImport(bool bShow);
    // The caption of the text file field: a file for one client, a path for all of them.
    void mSetTextDateiauswahl(std::uint8_t bytMandKanz, std::uint8_t bytDatenArt);
    // Asks once per job shown whether an empty backup directory is meant; false when the
    // user wants to choose one.
    bool mbCheckBackupPfadVorhanden();

    // The start of the directory and file dialogs when their field is empty.
    QString msStandardPfad;

    // ---- Schedule persistence (schedule/AdminJobSchedulePersistence.cpp,
    // schedule/ScheduleGrid.cpp) ----------------------------------------------------------
    // mInitGridZeitplan, mFuelleGridZeitplan, mLoescheZeitplan and moGridZeitplan stand with
    // the job editor above; mZeitplanEinfuegen with the job persistence.

    friend class SchedulePersistenceTestAccess;

    // Writes the schedule to the row lZeitplanId of the job lJobId; an id without a row (0,
    // -1) adds a new row.
    // Not written when the row could not be written (the failure is reported), or when the
    // row read at lGelesen changed or went meanwhile and the user did not say yes.
    RowConflict::Speicherung mZeitplanSpeichern(long& lZeitplanId, long& lJobId,
                                                cSchedule& oSchedule,
                                                long lGelesen = RowConflict::kNichtGelesen);
    // Asks, then deletes the schedule mlZeitplanId.
    void mZeitplanLoeschen();
    void moGridZeitplan_KeyDown(int iKeyCode);
    // The look all grids of the system share; touches no data.
    void mSetzeGridEigenschaften(class IGrid& grid);

    // ---- Import option files and document types (jobs/AdminJobOptionFiles*.cpp,
    //      jobs/AdminJobDocumentTypes.cpp) -------------------------------------------------

    friend class OptionFilesTestAccess;

    // The three choices of a row of the text file grid, one procedure each.
    struct TextDateiPfad {};
    struct TextDateiNamensAnfang {};
    struct TextDateiNamensAnfangUebernehmen {};

    // The entries of a script; no collection when it cannot be read. Gives their count.
    long mlCheckImportSkript(const QString& sSkript,
                             std::optional<QList<OptionFileEntry>>& colEintraege);
    QString mDateinameMitStern(const QString& sDatei);
    void mOptTxtDateiMultiAuswahl(const QList<OptionFileEntry>& colEintraege);
    void mOptTextDateiAuswaehlen(TextDateiPfad, int lZeile);
    void mOptTextDateiAuswaehlen(TextDateiNamensAnfang, int lZeile);
    void mOptTextDateiAuswaehlen(TextDateiNamensAnfangUebernehmen, int lZeile);
    void mOptTextDateienUebernehmen();
    void moFrmTextDateien_evTextDateiAuswaehlen(int lZeile, int Index);
    void moFrmTextDateien_evTextDateienUebernehmen();
    void moFrmTextDateiNamen_evTextDateienNamenUebernehmen(int lZeile);

    // Ticked rows of the document type grid.
    long mlBelegeAnzahl = 0;
    // The directory of txtTextBox(4) while the dealer key leaves that field empty.
    QString msNivoraTempPfad;
    long mlNivoraDaten = 0;

    std::shared_ptr<frmOptTextDateien> moFrmTextDateien;
    std::shared_ptr<frmOptTextDatName> moFrmTextDateiNamen;

    // ---- Schedule dialog (schedule/AdminJobScheduleDialog*.cpp) -------------------------

    friend class ScheduleDialogTestAccess;

    // Fills the dialog for the schedule lZeitplanId (0 for a new one).
    void mShowZeitplanEigenschaften(long lZeitplanId);
    void mDisableControlsZeitplanEigenschaften();
    void mDisableControls();
    void mofrmZeitplanEigenschaften_evFRMZeitplanOptOptionClicked(int Index);
    void mofrmZeitplanEigenschaften_evFrmZeitplanCommandButtonClicked(int Index);
    void mofrmZeitplanEigenschaften_evFRMZeitplanHilfe();
    // The message of the first failed check, or "".
    QString msCheckValuesFRMZeitplan();
    // A time box's text "hh:mm:ss" with "_" in empty places; loose by intent: 29:30 passes.
    bool mbCheckValidTime(QString& sZeit);
    // False when the schedule could not be written; the dialog then stays open.
    bool mZeitplanEigenschaftenUebernehmen();
    // The help topic of the schedules.
    void mHilfeAbruf();
    // The rows of the editor's schedule grid, header row included; 1 without a grid.
    long mlZeilenGrdZeitplan();
    // (owner: recurrence dialog)
    void mEditZeitintervall();

    // True while the dialog is being filled: the option events then leave the focus alone.
    bool mbLadeZeitplan = false;

    // ---- Recurrence dialog (schedule/AdminJobRecurrence*.cpp) --------------------------

    friend class RecurrenceTestAccess;

    // mEditZeitintervall, the entry from "Ändern...", is declared with the schedule dialog.
    void mFuelleFrmZeitintervall();
    // The message of the first failed check, "" when all pass.
    QString msCheckValuesFRMZeitintervall();
    void mSpeichernZeitintervall();
    bool mbCheckWochentag();
    std::int32_t mlGetWochentage();
    void mSetzeWochentage(std::int32_t lWochentage);
    long mlCBOKey(int Index);
    void mInitCBO_Nummer(int& Index, long& lAnzahl, long lKey);
    void mInitCBO_Wochentag(int Index, long lKey);
    void mInitCBO_First(int Index, long lKey);
    void mInitCBO_MinuteStunde(int Index, long lKey);
    void mEnableHaeufigkeitProTag_Einmalig(bool bEnable);
    void mEnableMonatlichAm(bool bEnable);
    void mShowFrameZeitIntervall(int Index);
    // Refills a number combo with 1 to lAnzahl and selects lKey (-1: none).
    void mNummern(int Index, long lAnzahl, long lKey);
    void mZeitintervallVerbinden();

    void mofrmzeitIntervall_evFrmZeitintervallCommandButtonClicked(int Index);
    void mofrmzeitIntervall_evFrmZeitintervallOptionHaeufigkeitClicked(int Index);
    void mofrmzeitIntervall_evFrmZeitintervallOptionMonatlichClicked(int Index);
    void mofrmzeitIntervall_evFrmZeitintervallOptionEnddatumClicked(int Index);
    void mofrmzeitIntervall_evFrmZeitintervallComboboxClicked(int Index);
    void mofrmzeitIntervall_evFRMZeitplanHilfe();

    // True while the dialog is being filled: no focus moves, no combo reactions.
    bool mbLadeZeitintervall = false;

    // ---- Copying a schedule to other jobs (schedule/AdminJobScheduleCopy.cpp) -----------
    // mShowZeitPlanKopieren, the entry, stands with the job editor above.

    friend class ScheduleCopyTestAccess;

    void mEndeZeitplanKopieren();
    void mInitGridAuftrag();
    // Lists every job but the one on show, each ticked.
    void mFuelleGridAuftrag();
    void moGridAuftrag_Click(int lRow, int lCol);
    void mZeitplanCopySetzen(long& lRow, long& lCol);
    void mZeitplanWaehlen(bool bAbwaehlen);
    // The buttons' enabled states and the count of ticked jobs, red at none.
    void mCMDZeitplanWaehlen();
    // Copies the schedule to every ticked job and reports what happened.
    void mZeitplanKopieren(std::uint8_t byZeitplanUeberschreiben);
    // Copies the schedule to one job, matched there by name.
    void mZeitplanCopy(long& lJobId);
    void mofrmZeitplanCopy_evZeitplanCopyOk(std::uint8_t& byZeitplanUeberschreiben);
    void mofrmZeitplanCopy_evZeitplanCopyCancel();
    void mofrmZeitplanCopy_evZeitplanWaehlen(bool& bAbwaehlen);

    long mlKopieZeitplanId = 0;
    QString msKopieZeitplanName;
    std::uint8_t mbyKopieUeberschreiben = 0;
    // Ticked and listed jobs while the window is open.
    long mlKopieAusgewaehlt = 0;
    long mlKopieGesamt = 0;
    // The counts of one copy run.
    long mlKopieErfolgreich = 0;
    long mlKopieNichtUeberschrieben = 0;
    long mlKopieNeu = 0;
    // The normal fore colour of lblZeitplanCopyInfo, as decimal text.
    QString msKopieInfoFarbe;
    // The window's job grid while the window is open.
    class IGrid* moGridAuftrag = nullptr;

    // ---- Windows: each empty until it exists --------------------------------------------

    std::shared_ptr<frmPakete> moFrmPakete;
    std::shared_ptr<IBrowser> moPakete;
    std::shared_ptr<frmEigenschaften> mofrmEigenschaften;
    std::shared_ptr<frmZeitIntervall> mofrmzeitIntervall;
    std::shared_ptr<frmZeitplan> mofrmZeitplanEigenschaften;
    std::shared_ptr<frmZeitplanCopy> mofrmZeitplanCopy;

    // Cuts every event the windows still hold to this controller when it goes away.
    LifeToken mLeben;
};
