#include <gtest/gtest.h>

#include "tests/jobs/test_panels_access.h"
#include "ui/windows/frmEigenschaften.h"

namespace {

using A = PanelsTestAccess;
using panels_test::Editor;

const QString kMandant = QStringLiteral("Bitte wählen Sie einen Mandanten aus.");
const QString kKanzlei = QStringLiteral("Bitte wählen Sie eine Kanzlei aus.");
const QString kFehlt =
    QStringLiteral("Das Verzeichnis existiert nicht oder ist nicht korrekt angegeben.");
const QString kBackupFrage = QStringLiteral(
    "Sie haben kein Verzeichnis für das Backup ausgewählt. In diesem Fall werden die "
    "Importierten Dateien nach dem Import gelöscht.\r\n\r\nWollen Sie ein Verzeichnis für das "
    "Backup ausgewählen?");
const QString kMitarbeiter =
    QStringLiteral("Es wurde kein Mitarbeiter für die Verwendung der Importoptionen ausgewählt.");

class Validation : public ::testing::Test {
  protected:
    Editor e;
    frmEigenschaften& f() { return *e.f; }

    void SetUp() override { e.ordner->folders = {"/imp", "/sic", "/log", "/tmp", "/Imp"}; }

    // A job of the type with every field that the checks look at filled and valid.
    void gueltig(std::uint8_t bytArt) {
        e.typ(bytArt);
        f().cboComboBox(frmEigenschaften::Cbo::MandKanz).setKey(1);
        f().txtTextBox(frmEigenschaften::Txt::Name).setText(QStringLiteral("Nachtimport"));
        f().ctlMandant().setId(4);
        f().txtTextBox(frmEigenschaften::Txt::Importdaten).setText(QStringLiteral("/imp"));
        f().txtTextBox(frmEigenschaften::Txt::Backup).setText(QStringLiteral("/sic"));
        f().txtTextBox(frmEigenschaften::Txt::Logfiles).setText(QStringLiteral("/log"));
        f().ctlMitarbeiterBuchProp().setId(1);
        f().ctlMitarbeiter().setId(1);
        f().ctlOptFileName(frmEigenschaften::OptDatei::Skript)
            .setText(QStringLiteral("/imp/skript.opt"));
        f().ctlOptFileName(frmEigenschaften::OptDatei::Textdatei)
            .setText(QStringLiteral("daten.txt"));
    }

    // Checks once; the message shown (or "" for none) and where the focus went.
    struct Ergebnis {
        bool ok;
        QString text;
        long style;
    };
    Ergebnis pruefen() {
        const size_t vorher = e.w.ui->boxes.size();
        const bool ok = A::check(e.admin());
        if (e.w.ui->boxes.size() == vorher) {
            return {ok, QString(), 0};
        }
        EXPECT_EQ(e.w.ui->boxes.size(), vorher + 1);
        return {ok, e.w.ui->boxes.back().text, e.w.ui->boxes.back().flags};
    }
    void erwarte(const QString& text, IControl& fokus) {
        const Ergebnis r = pruefen();
        EXPECT_FALSE(r.ok);
        EXPECT_EQ(r.text, text);
        EXPECT_EQ(r.style, 64);
        EXPECT_TRUE(fokus.Focused()) << fokus.name().toStdString();
    }
};

TEST_F(Validation, OfficeKindAsksForAnOffice) {
    gueltig(17);
    f().cboComboBox(frmEigenschaften::Cbo::MandKanz).setKey(2);
    f().ctlMandant().setId(0);
    erwarte(kKanzlei, f().ctlMandant());
}

TEST_F(Validation, AllClientsNeedNoClient) {
    gueltig(5);
    f().cboComboBox(frmEigenschaften::Cbo::MandKanz).setKey(3);
    f().ctlMandant().setId(0);
    EXPECT_TRUE(pruefen().ok);
}

TEST_F(Validation, TextImportNeedsScriptTextFileAndFormatDirectory) {
    gueltig(99);
    f().ctlOptFileName(frmEigenschaften::OptDatei::Skript).setText(QString());
    f().ctlOptFileName(frmEigenschaften::OptDatei::Textdatei).setText(QString());
    f().txtTextBox(frmEigenschaften::Txt::Importdaten).setText(QString());
    erwarte(QStringLiteral("Bitte wählen sie eine Script-Datei für den Textdatei-Import aus."),
            f().ctlOptFileName(frmEigenschaften::OptDatei::Skript));
    f().ctlOptFileName(frmEigenschaften::OptDatei::Skript).setText(QStringLiteral("s.opt"));
    erwarte(QStringLiteral("Bitte wählen sie eine Textdatei für den Textdatei-Import aus."),
            f().ctlOptFileName(frmEigenschaften::OptDatei::Textdatei));
    f().ctlOptFileName(frmEigenschaften::OptDatei::Textdatei).setText(QStringLiteral("t.txt"));
    erwarte(QStringLiteral("Bitte wählen Sie das Verzeichnis für die Importformatdateien aus."),
            f().txtTextBox(frmEigenschaften::Txt::Importdaten));
}

TEST_F(Validation, DealerJobChecksItsThreeDirectories) {
    gueltig(30);
    ASSERT_EQ(f().cboComboBox(frmEigenschaften::Cbo::Auftragsart).Key(), -1);
    A::bytDatenArt(e.admin()) = 30;
    f().cboComboBox(frmEigenschaften::Cbo::Nivora).Clear();
    for (long key : {1, 2, 3}) {
        f().cboComboBox(frmEigenschaften::Cbo::Nivora).AddItem(key, QString::number(key));
    }
    f().cboComboBox(frmEigenschaften::Cbo::Nivora).setKey(1);
    f().txtTextBox(frmEigenschaften::Txt::Importdaten).setText(QString());
    erwarte(
        QStringLiteral("Bitte wählen Sie das Verzeichnis aus dem die Belege übernommen werden."),
        f().txtTextBox(frmEigenschaften::Txt::Importdaten));
    f().txtTextBox(frmEigenschaften::Txt::Importdaten).setText(QStringLiteral("/imp"));
    f().txtTextBox(frmEigenschaften::Txt::Logfiles).setText(QString());
    erwarte(QStringLiteral("Bitte wählen Sie das Verzeichnis für die temporären "
                           "Buchungsdateien (MTA) aus."),
            f().txtTextBox(frmEigenschaften::Txt::Logfiles));

    // Dealer data 3 needs no temporary directory, but a given one must exist.
    f().cboComboBox(frmEigenschaften::Cbo::Nivora).setKey(3);
    f().txtTextBox(frmEigenschaften::Txt::Backup).setText(QString());
    erwarte(QStringLiteral(
                "Bitte wählen Sie das Verzeichnis in dem die Belegedateien gesichert werden."),
            f().txtTextBox(frmEigenschaften::Txt::Backup));
    f().txtTextBox(frmEigenschaften::Txt::Logfiles).setText(QStringLiteral("/weg"));
    erwarte(kFehlt, f().txtTextBox(frmEigenschaften::Txt::Logfiles));
    f().txtTextBox(frmEigenschaften::Txt::Logfiles).setText(QString());

    f().txtTextBox(frmEigenschaften::Txt::Backup).setText(QStringLiteral("/fort"));
    erwarte(kFehlt, f().txtTextBox(frmEigenschaften::Txt::Backup));
    f().txtTextBox(frmEigenschaften::Txt::Backup).setText(QStringLiteral("/imp"));
    erwarte(QStringLiteral("Das Verzeichnis aus dem die Belege gelesen werden darf nicht "
                           "identisch sein mit Verzeichnis in dem die Belegdateien gesichert "
                           "werden."),
            f().txtTextBox(frmEigenschaften::Txt::Importdaten));
    // Case counts: another spelling of the directory passes, and no backup question comes.
    f().txtTextBox(frmEigenschaften::Txt::Backup).setText(QStringLiteral("/Imp"));
    EXPECT_TRUE(pruefen().ok);
}

TEST_F(Validation, DocumentTypeJobNeedsOnlyTheImportDirectory) {
    gueltig(28);
    f().ctlMitarbeiterBuchProp().setId(0);
    const Ergebnis r = pruefen();
    EXPECT_TRUE(r.ok);
    EXPECT_EQ(r.text, QString());
}

TEST_F(Validation, ArchiveJobsCheckOnlyTheArchiveLogin) {
    for (std::uint8_t art : {20, 21}) {
        SCOPED_TRACE(art);
        gueltig(art);
        f().txtTextBox(frmEigenschaften::Txt::Importdaten).setText(QString());
        f().txtTextBox(frmEigenschaften::Txt::Logfiles).setText(QString());
        f().txtTextBox(frmEigenschaften::Txt::Backup).setText(QString());
        f().ctlMitarbeiter().setId(0);
        erwarte(QStringLiteral("Mitarbeiter für Archivanmeldung fehlt."), f().ctlMitarbeiter());
        f().ctlMitarbeiter().setId(1);
        EXPECT_TRUE(pruefen().ok);
    }
    EXPECT_FALSE(A::backupGefragt(e.admin()));
}

TEST_F(Validation, ArchiveJobStillNeedsNameAndClientFirst) {
    gueltig(21);
    f().ctlMitarbeiter().setId(0);
    f().ctlMandant().setId(0);
    erwarte(kMandant, f().ctlMandant());
}

TEST_F(Validation, EmptyBackupIsAskedOncePerJobShown) {
    gueltig(17);
    f().txtTextBox(frmEigenschaften::Txt::Backup).setText(QStringLiteral("  "));

    // Yes: the user goes to choose a directory.
    e.w.ui->answers = {6};
    Ergebnis r = pruefen();
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.text, kBackupFrage);
    EXPECT_EQ(r.style, 4);
    EXPECT_TRUE(f().txtTextBox(frmEigenschaften::Txt::Backup).Focused());

    // Asked once: the next save goes through without a question.
    r = pruefen();
    EXPECT_TRUE(r.ok);
    EXPECT_EQ(r.text, QString());

    // Another job shown asks again; No lets the job be saved.
    A::backupGefragt(e.admin()) = false;
    e.w.ui->answers = {7};
    r = pruefen();
    EXPECT_TRUE(r.ok);
    EXPECT_EQ(r.text, kBackupFrage);
    EXPECT_TRUE(A::backupGefragt(e.admin()));
}

TEST_F(Validation, FilledBackupCountsAsAsked) {
    gueltig(5);
    EXPECT_TRUE(A::backupPfad(e.admin()));
    EXPECT_TRUE(A::backupGefragt(e.admin()));
    EXPECT_TRUE(e.w.ui->boxes.empty());
}

TEST_F(Validation, FailedStaffCheckComesAfterTheBackupQuestion) {
    gueltig(18);
    f().txtTextBox(frmEigenschaften::Txt::Backup).setText(QString());
    f().ctlMitarbeiterBuchProp().setId(0);
    e.w.ui->answers = {7};
    EXPECT_FALSE(A::check(e.admin()));
    EXPECT_EQ(e.boxen(), (QStringList{kBackupFrage, kMitarbeiter}));
}

}  // namespace
