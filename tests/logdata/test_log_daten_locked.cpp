// The deletion of log data while another writer holds the database longer than the program
// waits: the user is told once, the window keeps its entries, and the next try deletes.
#include <gtest/gtest.h>

#include <utility>

#include "common/ErrObject.h"
#include "tests/logdata/LogDatenTestKit.h"
#include "ui/windows/frmLogDatenDel.h"

using app_test::World;
using logdaten_test::Driver;
using logdaten_test::RecordingRecordset;
using A = LogDatenTestAccess;

namespace {

// The first statement run fails as SQLite fails on a lock held too long.
class LockedOnce : public RecordingRecordset {
  public:
    LockedOnce(std::unique_ptr<CRecordset> real, std::shared_ptr<QStringList> statements,
               std::shared_ptr<bool> locked)
        : RecordingRecordset(std::move(real), std::move(statements), false),
          locked_(std::move(locked)) {}
    long Execute(const QString& sql) override {
        if (std::exchange(*locked_, false)) {
            throw RaisedError(5, QStringLiteral("database is locked\r\n") + sql,
                              QStringLiteral("hdata.CRecordset"));
        }
        return RecordingRecordset::Execute(sql);
    }

  private:
    std::shared_ptr<bool> locked_;
};

TEST(LogDatenLocked, DeletionWindowStaysWithItsEntriesAndTheSecondTryDeletes) {
    World world;
    Driver driver;
    driver.world = &world;
    world.windows->setModalDriver(&driver);
    world.sql(
        "INSERT INTO SYS_JobAgentLogDaten (DatumUhrzeit, LogTyp, JobArt, AutoJobId, "
        "MitarbeiterId, Herkunft, AuftragKennung, Text) VALUES "
        "('2026-11-21 06:00:00', 3, 17, 4, 1, 'Starter', '', 'nicht gestartet'),"
        "('2026-11-21 07:00:00', 2, 17, 4, 1, 'Auftrag', 'Auftrag 4', 'importiert');");
    auto statements = std::make_shared<QStringList>();
    auto real = services().newRecordset;
    auto locked = std::make_shared<bool>(true);
    services().newRecordset = [real, statements, locked]() -> std::unique_ptr<CRecordset> {
        return std::make_unique<LockedOnce>(real(), statements, locked);
    };

    cLogDaten o;
    o.evInitCBOAuftragsart = [](IComboBox& cbo, long, bool) {
        cbo.AddItem(0, QStringLiteral("Alle"));
        cbo.setKey(0);
    };
    bool windowAfterFailure = false;
    std::optional<QDate> vonAfterFailure;
    size_t reportsAfterFailure = 0;
    driver.steps[QStringLiteral("frmLogDatenDel")] = [&](HeadlessWindow& w) {
        auto frm = A::loeschen(o);
        frm->ctlDatePicker(frmLogDatenDel::Datum::Von).setValue(QDate(2026, 11, 21));
        frm->ctlDatePicker(frmLogDatenDel::Datum::Bis).setValue(QDate(2026, 11, 21));
        world.ui->answers = {6};
        w.headlessControl(QStringLiteral("cmdAktion"), 0)->userClick();
        windowAfterFailure = A::loeschen(o) != nullptr && !w.isUnloaded();
        vonAfterFailure = frm->ctlDatePicker(frmLogDatenDel::Datum::Von).Value();
        reportsAfterFailure = world.ui->reports.size();
        world.ui->answers = {6, 1};
        w.headlessControl(QStringLiteral("cmdAktion"), 0)->userClick();
    };
    long lJobId = 0;
    o.mLogdatenDeleteAuswahl(2, lJobId);

    EXPECT_TRUE(windowAfterFailure);
    EXPECT_EQ(vonAfterFailure, QDate(2026, 11, 21));
    ASSERT_EQ(reportsAfterFailure, 1u);
    EXPECT_EQ(world.ui->reports[0].number, 5);
    EXPECT_TRUE(world.ui->reports[0].description.startsWith("database is locked"));
    EXPECT_EQ(world.ui->reports.size(), 1u);
    EXPECT_EQ(world.boxTexts().last(), "Es wurde 1 Logeintrag gelöscht.");
    EXPECT_EQ(world.scalar(QStringLiteral("SELECT group_concat(Text) FROM SYS_JobAgentLogDaten")),
              "nicht gestartet");
    EXPECT_EQ(A::loeschen(o), nullptr);
}

}  // namespace
