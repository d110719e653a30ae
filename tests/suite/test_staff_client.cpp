#include <gtest/gtest.h>

#include "common/ErrObject.h"
#include "suite/SuiteServices.h"

namespace {

class StaffClient : public ::testing::Test {
  protected:
    StaffClient()
        : clock(std::make_shared<FixedClock>(QDateTime(QDate(2026, 11, 22), QTime(10, 0)))),
          db(Database::open(":memory:", clock)),
          scope(makeSuiteServices(std::make_shared<SuiteConfig>(SuiteConfig::defaults()), db,
                                  nullptr, clock)) {
        db->runScript(
            "CREATE TABLE tMitarbeiter (MitId INTEGER PRIMARY KEY AUTOINCREMENT, "
            "Name TEXT NOT NULL);"
            "CREATE TABLE tMandant (ManId INTEGER PRIMARY KEY AUTOINCREMENT, "
            "ManNr INTEGER NOT NULL, Kanzlei BIT NOT NULL DEFAULT 0, Name TEXT);"
            "INSERT INTO tMitarbeiter (MitId, Name) VALUES (1, 'Anna Admin');"
            "INSERT INTO tMitarbeiter (MitId, Name) VALUES (7, 'Jürgen Müller');"
            "INSERT INTO tMandant (ManId, ManNr, Kanzlei, Name) VALUES (1, 4711, 0, 'M1');"
            "INSERT INTO tMandant (ManId, ManNr, Kanzlei, Name) VALUES (2, 12, 1, 'K12');");
    }

    std::shared_ptr<FixedClock> clock;
    std::shared_ptr<Database> db;
    ScopedServices scope;
};

TEST_F(StaffClient, StaffMemberGivesDisplayNameByIdAndNothingForUnknownIds) {
    auto m = services().newMitarbeiter();
    EXPECT_TRUE(m->KeinDatensatz());

    m->SetId(1);
    m->Lesen();
    EXPECT_FALSE(m->KeinDatensatz());
    EXPECT_EQ(m->Anzeigename(), "Anna Admin");

    m->SetId(7);
    m->Lesen();
    EXPECT_EQ(m->Anzeigename(), QString::fromUtf8("Jürgen Müller"));

    m->SetId(99);
    m->Lesen();
    EXPECT_TRUE(m->KeinDatensatz());
    EXPECT_EQ(m->Anzeigename(), "");

    m->SetId(1);
    m->Lesen();
    m->Schliessen();
    EXPECT_TRUE(m->KeinDatensatz());
    EXPECT_EQ(m->Anzeigename(), "");
}

TEST_F(StaffClient, FormatSqlDateGivesQuotedIsoLiteral) {
    auto m = services().newMitarbeiter();
    EXPECT_EQ(m->FormatSqlDate(QDateTime(QDate(2026, 11, 22), QTime(13, 45, 7)), 0),
              "'2026-11-22 13:45:07'");
    EXPECT_EQ(m->FormatSqlDate(QDateTime(QDate(2026, 1, 5), QTime()), 0), "'2026-01-05 00:00:00'");
    EXPECT_EQ(m->FormatSqlDate(QDate(9999, 12, 31).startOfDay(), 0), "'9999-12-31 00:00:00'");
    EXPECT_EQ(m->FormatSqlDate(QDateTime(), 0), "'1899-12-30 00:00:00'");
}

TEST_F(StaffClient, ClientAndOfficeGiveNumberAndKind) {
    auto c = services().newMandant();
    c->SetId(1);
    c->Lesen();
    EXPECT_EQ(c->GetId(), 1);
    EXPECT_EQ(c->ManNr(), 4711);
    EXPECT_FALSE(c->IstKanzlei());

    c->SetId(2);
    c->Lesen();
    EXPECT_EQ(c->GetId(), 2);
    EXPECT_EQ(c->ManNr(), 12);
    EXPECT_TRUE(c->IstKanzlei());

    // A client that is missing leaves nothing of the record before.
    c->SetId(3);
    c->Lesen();
    EXPECT_EQ(c->GetId(), 0);
    EXPECT_EQ(c->ManNr(), 0);
    EXPECT_FALSE(c->IstKanzlei());
}

TEST_F(StaffClient, ReadFailureRaisesIntoTheCaller) {
    db->runScript("DROP TABLE tMitarbeiter;");
    auto m = services().newMitarbeiter();
    m->SetId(1);
    EXPECT_THROW(m->Lesen(), RaisedError);
    EXPECT_TRUE(m->KeinDatensatz());
}

}  // namespace
