#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "jobs/AdminJobOptionFilesNames.h"
#include "tests/jobs/OptionFilesTestAccess.h"
#include "ui/windows/frmEigenschaften.h"

namespace {

using A = OptionFilesTestAccess;
using option_files_test::EditorWorld;

const QString kZweiDateien = QStringLiteral("Das Importskript benötigt 2 Textdateien.");

struct Teile {
    QString pfad, name, ext;
    bool operator==(const Teile&) const = default;
};
Teile split(const QString& s) {
    Teile t;
    gStrSplitFileName(s, t.pfad, t.name, t.ext);
    return t;
}

TEST(FileNameSplit, PathKeepsItsSeparatorAndTheExtensionItsDot) {
    EXPECT_EQ(split(QStringLiteral("/imp/kunden.txt")),
              (Teile{QStringLiteral("/imp/"), QStringLiteral("kunden"), QStringLiteral(".txt")}));
    EXPECT_EQ(
        split(QStringLiteral("C:\\imp\\k.2024.csv")),
        (Teile{QStringLiteral("C:\\imp\\"), QStringLiteral("k.2024"), QStringLiteral(".csv")}));
    EXPECT_EQ(split(QStringLiteral("kunden")),
              (Teile{QString(), QStringLiteral("kunden"), QString()}));
    EXPECT_EQ(split(QStringLiteral("/imp.d/kunden")),
              (Teile{QStringLiteral("/imp.d/"), QStringLiteral("kunden"), QString()}));
    EXPECT_EQ(split(QStringLiteral("/imp/.profil")),
              (Teile{QStringLiteral("/imp/"), QStringLiteral(".profil"), QString()}));
    EXPECT_EQ(split(QStringLiteral("/imp/")),
              (Teile{QStringLiteral("/imp/"), QString(), QString()}));
    EXPECT_EQ(extOhnePunkt(QStringLiteral(".csv")), QStringLiteral("csv"));
}

class OptionFiles : public ::testing::Test {
  protected:
    EditorWorld e;
    QTemporaryDir dir;

    cAdminJob& a() { return e.a(); }
    frmEigenschaften& frm() { return e.frm(); }

    QString skript(const char* name, const QByteArray& content) {
        const QString path = dir.filePath(QString::fromUtf8(name));
        QFile f(path);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(content);
        return path;
    }
    QString zweiTabellen() {
        return skript("zwei.opt", "BUCHUNGEN=/imp/buchungen.txt\nSTAMM=/imp/stamm_nodel.csv\n");
    }
    QString eineTabelle() { return skript("eine.opt", "KUNDEN=/daten/import/kunden.txt\n"); }
};

TEST_F(OptionFiles, StarMarksTheClientsPartOnlyForAllClients) {
    const QString datei = QStringLiteral("/imp/kunden.txt");
    A::mandKanz(a()) = 2;
    EXPECT_EQ(A::mitStern(a(), datei), datei);
    A::mandKanz(a()) = 3;
    EXPECT_EQ(A::mitStern(a(), datei), QStringLiteral("/imp/kunden*.txt"));
    A::mandKanz(a()) = 5;
    EXPECT_EQ(A::mitStern(a(), QStringLiteral("/imp/stamm_nodel.csv")),
              QStringLiteral("/imp/stamm_nodel.csv"));
    EXPECT_EQ(A::mitStern(a(), QStringLiteral("kunden")), QStringLiteral("kunden*"));
}

TEST_F(OptionFiles, ReadingAScriptCountsItsEntriesAndAMissingOneCountsNone) {
    A::E col;
    EXPECT_EQ(A::checkSkript(a(), zweiTabellen(), col), 2);
    ASSERT_TRUE(col.has_value());
    EXPECT_EQ(col->at(1).TableName, QStringLiteral("STAMM"));

    const QString fehlt = dir.filePath(QStringLiteral("fehlt.opt"));
    EXPECT_EQ(A::checkSkript(a(), fehlt, col), 0);
    EXPECT_FALSE(col.has_value());
    EXPECT_EQ(e.reports(),
              QStringList{QStringLiteral("mlCheckImportSkript: Datei nicht gefunden: ") + fehlt});
}

TEST_F(OptionFiles, TextFileFieldFollowsTheScript) {
    A::textDateien(a()) = QStringLiteral("/daten/alt.txt");
    frm().ctlOptFileName(frmEigenschaften::OptDatei::Skript).setText(zweiTabellen());
    A::dateienSetzen(a(), QString());
    EXPECT_EQ(frm().ctlOptFileName(frmEigenschaften::OptDatei::Textdatei).Text(), kZweiDateien);
    EXPECT_FALSE(frm().ctlOptFileName(frmEigenschaften::OptDatei::Textdatei).Enabled());

    frm().ctlOptFileName(frmEigenschaften::OptDatei::Skript).setText(eineTabelle());
    A::dateienSetzen(a(), QString());
    EXPECT_EQ(frm().ctlOptFileName(frmEigenschaften::OptDatei::Textdatei).Text(),
              QStringLiteral("/daten/alt.txt"));
    EXPECT_TRUE(frm().ctlOptFileName(frmEigenschaften::OptDatei::Textdatei).Enabled());

    // Pairs of the former script do not carry over to another one.
    A::textDateien(a()) = QStringLiteral("BUCHUNGEN?/imp/b.txt");
    A::dateienSetzen(a(), eineTabelle());
    EXPECT_EQ(A::textDateien(a()), QStringLiteral("BUCHUNGEN?/imp/b.txt"));
    A::dateienSetzen(a(), zweiTabellen());
    EXPECT_TRUE(A::textDateien(a()).isEmpty());
    EXPECT_TRUE(frm().ctlOptFileName(frmEigenschaften::OptDatei::Textdatei).Text().isEmpty());
}

TEST_F(OptionFiles, WithoutAFileTheDialogOffersTextAndAllFiles) {
    A::mandKanz(a()) = 1;
    e.w.config->paths[83] = QStringLiteral("/suite/daten/");
    A::dateiAuswaehlen(a(), 1);
    ASSERT_EQ(e.dialogs->fragen.size(), 1u);
    EXPECT_EQ(e.dialogs->fragen[0].filter,
              QStringLiteral("Textdatei (*.txt;*.csv)|*.txt;*.csv|Alle Dateien (*.*)|*.*"));
    EXPECT_EQ(e.dialogs->fragen[0].start, QStringLiteral("/suite/daten/"));
    EXPECT_TRUE(e.dialogs->fragen[0].fileName.isEmpty());
    // Cancelled: nothing changes.
    EXPECT_TRUE(frm().ctlOptFileName(frmEigenschaften::OptDatei::Textdatei).Text().isEmpty());
    EXPECT_FALSE(e.geaendert());
}

TEST_F(OptionFiles, AllClientsChooseOnlyTheDirectoryOfTheTextFile) {
    A::mandKanz(a()) = 3;
    frm().ctlOptFileName(frmEigenschaften::OptDatei::Skript).setText(eineTabelle());
    e.unveraendert();
    e.dialogs->antworten.push_back(QStringLiteral("/neu"));
    A::dateiAuswaehlen(a(), 1);

    ASSERT_EQ(e.dialogs->fragen.size(), 1u);
    EXPECT_EQ(e.dialogs->fragen[0].start, QStringLiteral("/daten/import/"));
    EXPECT_TRUE(e.dialogs->fragen[0].filter.isEmpty());
    EXPECT_EQ(frm().ctlOptFileName(frmEigenschaften::OptDatei::Textdatei).Text(),
              QStringLiteral("/neu/kunden.txt"));
    EXPECT_TRUE(A::textDateien(a()).isEmpty());
    EXPECT_FALSE(e.geaendert());
}

}  // namespace
