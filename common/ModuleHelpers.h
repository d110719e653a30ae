#pragma once

#include <QDateTime>
#include <QString>

class NavBar;

// The help file of the external programs and the three topics the system opens in it.
namespace HelpKeys {
inline const QString kHelpFile = QStringLiteral("Akte_externe_programme.xml");
inline const QString kJobList =
    QStringLiteral("HID_AKTE_EXTERNE_PROGRAMME_JOBAGENT_DOKUMENT_JOBAGENT2DAUFTRE4GE");
inline const QString kJobProperties =
    QStringLiteral("HID_AKTE_EXTERNE_PROGRAMME_JOBAGENT_ALLGEMEINE_ANGABEN_ZUM_AUFTRAG");
inline const QString kSchedules = QStringLiteral(
    "HID_AKTE_EXTERNE_PROGRAMME_JOBAGENT_REGISTER_ZEITPLE4NE_2D_ZEITPLAN_ANLEGEN_UND_BEARBEITEN");
}  // namespace HelpKeys

// The title of every message box: text 1001 and the name of this part of the suite.
QString msGetTitel();

// The directory of the job agent's log files, ending in a separator.
bool msGetLogPath(QString& sPfad);

// Enables the four step tools of band "barMain" and disables those that lead nowhere from
// position lPos of lLetzte. Acts only on bars of type "ActiveBar2".
void mSetNavTools(long lPos, long lLetzte, NavBar* oBar);

// Whether a log file's name belongs to the client with number sMandNr.
bool mbDateiZumMandant(const QString& sDatei, long lDatenArt, const QString& sMandNr, long lKanzlei,
                       bool bFlag);

// "yyyy-mm-dd hh:mm:ss".
QString msDatumZeit(const QDateTime& dtWert);

// Opens a topic of the help file of the external programs. Failures go on into the caller.
void gShowWikiHelpExterneProgramme(const QString& sThema);

// Joins a directory and a name with the platform's separator, adding none where the
// directory ends in one already.
QString joinPath(const QString& dir, const QString& name);
// The platform's separator.
QString pathSeparator();
