#include <gtest/gtest.h>

#include "tests/jobs/OptionFilesTestAccess.h"

namespace {

using A = OptionFilesTestAccess;
using option_files_test::EditorWorld;

class DocumentTypes : public ::testing::Test {
  protected:
    EditorWorld e;

    cAdminJob& a() { return e.a(); }
    IGrid& grd() { return e.frm().grdBeleg(); }

    void SetUp() override {
        e.w.sql(
            "INSERT INTO XB_Belegart_iKesto (Nummer, Bezeichnung) VALUES (3, 'Gutschrift');"
            "INSERT INTO XB_Belegart_iKesto (Nummer, Bezeichnung) VALUES (1, 'Rechnung');"
            "INSERT INTO XB_Belegart_iKesto (Nummer, Bezeichnung) VALUES (2, 'Kassenbeleg');");
        A::initBelegarten(a());
    }

    QString haken() {
        QString s;
        for (int r = 1; r < grd().Rows(); ++r) {
            s += grd().CellChecked(r, 1) ? QLatin1Char('x') : QLatin1Char('-');
        }
        return s;
    }
    // The user toggles a row's tick; the grid raises AfterEdit to the controller.
    void umschalten(int row) {
        e.frm().evGrdBelegAfterEdit = [this](int r) { A::belegAfterEdit(a(), r); };
        e.control(e.frm(), "grdBeleg").userGridToggle(row, 1);
    }
};

TEST_F(DocumentTypes, GridListsTheTypesByNumber) {
    ASSERT_EQ(grd().Rows(), 4);
    EXPECT_EQ(grd().Cols(), 2);
    EXPECT_EQ(grd().TextMatrix(0, 0), QStringLiteral("Belegart"));
    EXPECT_EQ(grd().TextMatrix(0, 1), QStringLiteral("Auswählen"));
    EXPECT_EQ(grd().ColWidth(0), 3600);
    EXPECT_EQ(grd().ColWidth(1), 750);
    EXPECT_TRUE(grd().ColBoolean(1));
    EXPECT_EQ(grd().TextMatrix(1, 0), QStringLiteral("Rechnung"));
    EXPECT_EQ(grd().TextMatrix(2, 0), QStringLiteral("Kassenbeleg"));
    EXPECT_EQ(grd().TextMatrix(3, 0), QStringLiteral("Gutschrift"));
    EXPECT_EQ(grd().RowData(1).toLongLong(), 1);
    EXPECT_EQ(grd().RowData(3).toLongLong(), 3);

    // Shown again for the next job: the rows are not doubled.
    A::initBelegarten(a());
    EXPECT_EQ(grd().Rows(), 4);
}

TEST_F(DocumentTypes, StoredListSetsTheTicks) {
    A::fillBelege(a(), QStringLiteral("1,3"));
    EXPECT_EQ(haken(), QStringLiteral("x-x"));
    EXPECT_EQ(A::belegeAnzahl(a()), 2);
    EXPECT_EQ(A::belegarten(a()), QStringLiteral("1,3"));

    for (const char* alle : {"0", ""}) {
        A::fillBelege(a(), QString::fromUtf8(alle));
        EXPECT_EQ(haken(), QStringLiteral("xxx")) << alle;
        EXPECT_EQ(A::belegeAnzahl(a()), 3);
        // All ticked is stored as the whole list.
        EXPECT_EQ(A::belegarten(a()), QStringLiteral("1,2,3"));
    }

    A::fillBelege(a(), QStringLiteral("2,9"));
    EXPECT_EQ(haken(), QStringLiteral("-x-"));
    EXPECT_EQ(A::belegeAnzahl(a()), 1);
}

TEST_F(DocumentTypes, TheLastTickCannotBeRemoved) {
    A::fillBelege(a(), QStringLiteral("1,2"));
    umschalten(1);
    EXPECT_EQ(haken(), QStringLiteral("-x-"));
    EXPECT_EQ(A::belegeAnzahl(a()), 1);
    umschalten(2);
    EXPECT_EQ(haken(), QStringLiteral("-x-"));
    EXPECT_EQ(A::belegeAnzahl(a()), 1);
    umschalten(3);
    EXPECT_EQ(A::belegarten(a()), QStringLiteral("2,3"));
    EXPECT_EQ(A::belegeAnzahl(a()), 2);
    EXPECT_FALSE(e.geaendert());
}

TEST_F(DocumentTypes, ANumberThatLeftTheTableTicksNothingUntilTheUserTicks) {
    A::fillBelege(a(), QStringLiteral("9"));
    EXPECT_EQ(haken(), QStringLiteral("---"));
    EXPECT_EQ(A::belegeAnzahl(a()), 0);
    EXPECT_EQ(A::belegarten(a()), QString());
    umschalten(2);
    EXPECT_EQ(A::belegarten(a()), QStringLiteral("2"));
    EXPECT_EQ(A::belegeAnzahl(a()), 1);
}

class DealerData : public ::testing::Test {
  protected:
    EditorWorld e;
    cAdminJob& a() { return e.a(); }
    IComboBox& cbo() { return e.frm().cboComboBox(3); }
    ITextBox& verzeichnis() { return e.frm().txtTextBox(4); }
};

TEST_F(DealerData, ComboOffersTheThreeChoicesAndAKeyBelowOneBecomesOne) {
    long key = 0;
    A::initNivora(a(), key);
    EXPECT_EQ(key, 1);
    ASSERT_EQ(cbo().ItemCount(), 3);
    EXPECT_EQ(cbo().ItemTextAt(0), QStringLiteral("Buchungen und Debitoren"));
    EXPECT_EQ(cbo().ItemTextAt(1), QStringLiteral("Buchungen"));
    EXPECT_EQ(cbo().ItemTextAt(2), QStringLiteral("Debitoren"));
    EXPECT_EQ(cbo().Key(), 1);
    EXPECT_TRUE(cbo().Visible());
    EXPECT_EQ(A::nivoraDaten(a()), 1);
    // The first key after a job is shown marks nothing.
    EXPECT_FALSE(e.geaendert());

    // Filled again, the items are not doubled.
    key = 2;
    A::initNivora(a(), key);
    EXPECT_EQ(cbo().ItemCount(), 3);
    EXPECT_EQ(cbo().Key(), 2);
}

TEST_F(DealerData, DebtorsOnlyEmptiesTheDirectoryAndTheWayBackRestoresIt) {
    verzeichnis().setText(QStringLiteral("/nivora/buchungen"));
    long key = 2;
    A::initNivora(a(), key);
    EXPECT_FALSE(e.geaendert());

    A::nivoraDatenSetzen(a(), 3);
    EXPECT_TRUE(verzeichnis().Text().isEmpty());
    EXPECT_FALSE(verzeichnis().Enabled());
    EXPECT_FALSE(e.frm().cmdCommandButton(8).Enabled());
    EXPECT_EQ(A::nivoraTempPfad(a()), QStringLiteral("/nivora/buchungen"));
    EXPECT_TRUE(e.geaendert());

    A::nivoraDatenSetzen(a(), 1);
    EXPECT_EQ(verzeichnis().Text(), QStringLiteral("/nivora/buchungen"));
    EXPECT_TRUE(verzeichnis().Enabled());
    EXPECT_TRUE(e.frm().cmdCommandButton(8).Enabled());
    EXPECT_EQ(A::nivoraDaten(a()), 1);
}

}  // namespace
