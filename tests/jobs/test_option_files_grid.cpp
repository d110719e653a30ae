#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "tests/jobs/OptionFilesTestAccess.h"
#include "ui/windows/frmOptTextDateien.h"

namespace {

using A = OptionFilesTestAccess;
using option_files_test::EditorWorld;

class TextFileGrid : public ::testing::Test {
  protected:
    EditorWorld e;
    QTemporaryDir dir;
    QStringList gesehen;

    cAdminJob& a() { return e.a(); }
    frmEigenschaften& frm() { return e.frm(); }
    frmOptTextDateien& grdFrm() { return *A::grid(a()); }
    IGrid& grd() { return grdFrm().grdFileNames(); }

    void SetUp() override {
        const QString path = dir.filePath(QStringLiteral("zwei.opt"));
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("BUCHUNGEN=/imp/buchungen.txt\nSTAMM=/imp/stamm_nodel.csv\n");
        f.close();
        frm().ctlOptFileName(0).setText(path);
    }

    // Every cell of the grid, row by row, "|" between the cells.
    QStringList zellen() {
        QStringList rows;
        for (int r = 0; r < grd().Rows(); ++r) {
            QStringList cells;
            for (int c = 0; c < grd().Cols(); ++c) {
                cells << grd().TextMatrix(r, c);
            }
            rows << cells.join(QLatin1Char('|'));
        }
        return rows;
    }
    void klick(const char* name, int index = -1) { e.control(grdFrm(), name, index).userClick(); }
    void beimGitter(std::function<void()> schritt) {
        e.driver.steps[QStringLiteral("frmOptTextDateien")] = std::move(schritt);
    }
};

TEST_F(TextFileGrid, OneClientShowsTheScriptsFilesAndStoresThePairs) {
    A::mandKanz(a()) = 1;
    // A stored pair fills its row; the pair of a table that left the script is dropped.
    A::textDateien(a()) = QStringLiteral("WEG?/alt/weg.txt?STAMM?/alt/stamm.csv");
    beimGitter([&] {
        gesehen = zellen();
        EXPECT_FALSE(grdFrm().ctlOptTextDatei(frmOptTextDateien::Auswahl::NamensAnfang).Visible());
        EXPECT_EQ(grdFrm().ctlOptTextDatei(frmOptTextDateien::Auswahl::Pfad).ToolTip(),
                  QStringLiteral("Auswahl Datenpfad..."));
        EXPECT_EQ(grd().Row(), 1);
        klick("cmdOk");
    });
    A::dateiAuswaehlen(a(), 1);

    EXPECT_EQ(gesehen, (QStringList{QStringLiteral("Tabelle|Textdatei"),
                                    QStringLiteral("BUCHUNGEN|/imp/buchungen.txt"),
                                    QStringLiteral("STAMM|/alt/stamm.csv")}));
    EXPECT_EQ(A::textDateien(a()),
              QStringLiteral("BUCHUNGEN?/imp/buchungen.txt?STAMM?/alt/stamm.csv"));
    EXPECT_EQ(frm().ctlOptFileName(1).ToolTip(),
              QStringLiteral("/imp/buchungen.txt | /alt/stamm.csv"));
    EXPECT_EQ(frm().ctlOptFileName(1).Text(),
              QStringLiteral("Das Importskript benötigt 2 Textdateien."));
    EXPECT_TRUE(e.geaendert());
    EXPECT_EQ(A::grid(a()), nullptr);
    EXPECT_TRUE(e.dialogs->fragen.empty());
}

TEST_F(TextFileGrid, AllClientsEditPathAndBeginningOfTheName) {
    A::mandKanz(a()) = 5;
    A::textDateien(a()) = QStringLiteral("BUCHUNGEN?/alt/bu*.txt");
    QString anfang;
    e.driver.steps[QStringLiteral("frmOptTextDatName")] = [&] {
        auto& nameFrm = *A::name(a());
        anfang = nameFrm.ctlOptDateiNameBeginntMit().Text();
        e.control(nameFrm, "ctlOptDateiNameBeginntMit").userType(QStringLiteral("buch"));
        e.control(nameFrm, "cmdOk").userClick();
    };
    e.dialogs->antworten.push_back(QStringLiteral("/neu"));
    beimGitter([&] {
        gesehen = zellen();
        EXPECT_TRUE(grdFrm().ctlOptTextDatei(frmOptTextDateien::Auswahl::NamensAnfang).Visible());
        EXPECT_EQ(grdFrm().ctlOptTextDatei(frmOptTextDateien::Auswahl::Pfad).ToolTip(),
                  QStringLiteral("Datenpfad auswählen"));
        EXPECT_TRUE(grd().ColHidden(2) && grd().ColHidden(3) && grd().ColHidden(4));
        klick("ctlOptTextDatei", frmOptTextDateien::Auswahl::NamensAnfang);
        EXPECT_EQ(grd().TextMatrix(1, 1), QStringLiteral("/alt/buch*.txt"));
        klick("ctlOptTextDatei", frmOptTextDateien::Auswahl::Pfad);
        klick("cmdOk");
    });
    A::dateiAuswaehlen(a(), 1);

    EXPECT_EQ(gesehen,
              (QStringList{QStringLiteral("Tabelle|Textdatei|||"),
                           QStringLiteral("BUCHUNGEN|/alt/bu*.txt|/alt/|bu|.txt"),
                           QStringLiteral("STAMM|/imp/stamm_nodel.csv|/imp/|stamm_nodel|.csv")}));
    EXPECT_EQ(anfang, QStringLiteral("bu"));
    ASSERT_EQ(e.dialogs->fragen.size(), 1u);
    EXPECT_EQ(e.dialogs->fragen[0].start, QStringLiteral("/alt/"));
    EXPECT_EQ(A::textDateien(a()),
              QStringLiteral("BUCHUNGEN?/neu/buch*.txt?STAMM?/imp/stamm_nodel.csv"));
    EXPECT_EQ(A::name(a()), nullptr);
}

}  // namespace
