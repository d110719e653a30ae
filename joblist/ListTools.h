#pragma once

#include <QString>

// The names of the list's commands: tools of the browser's bar and menu, of the bands of the
// list window's hidden bar and of the host's menu. Compared as exact text.
namespace ListTool {
inline const QString Neu = QStringLiteral("Neu");
inline const QString Bearbeiten = QStringLiteral("Bearbeiten");
inline const QString Loeschen = QStringLiteral("Löschen");
inline const QString Kopieren = QStringLiteral("Kopieren");
inline const QString Einfuegen = QStringLiteral("Einfügen");
inline const QString AktivUmschalten = QStringLiteral("Deaktivieren/Aktivieren");
inline const QString Verlauf = QStringLiteral("Auftragsverlauf");
inline const QString Ausfuehren = QStringLiteral("Auftrag ausführen");
inline const QString LogdatenDienst = QStringLiteral("Logdaten Dienst");
inline const QString LogdatenAuftraege = QStringLiteral("Logdaten Aufträge");
inline const QString LogdatenDienstLoeschen = QStringLiteral("Logdaten Dienst löschen");
inline const QString LogdatenAuftragLoeschen = QStringLiteral("Logdaten Auftrag löschen");
inline const QString HilfeDokument = QStringLiteral("mnuHilfeDokument");
inline const QString HilfeEigenschaften = QStringLiteral("mnuHilfeEigenschaften");
}  // namespace ListTool

// The bands of the list window's bar.
namespace MenuBand {
inline const QString Bearbeiten = QStringLiteral("Bearbeiten");
inline const QString Ansicht = QStringLiteral("Ansicht");
}  // namespace MenuBand

// What mPaketBearbeiten is asked to do.
namespace PaketAktion {
constexpr int Neu = 1;
constexpr int AktivUmschalten = 6;
constexpr int Verlauf = 7;
constexpr int Aktualisieren = 8;
constexpr int Loeschen = 10;
constexpr int Bearbeiten = 12;
}  // namespace PaketAktion
