// The log data viewer on the Qt windows without a modal driver: each window runs its own
// nested event loop, as in the program, and the user ends them with the close box.
#include <gtest/gtest.h>
#include <QTimer>

#include "gui/QtWindow.h"
#include "gui/QtWindowFactory.h"
#include "logdata/cLogDaten.h"
#include "tests/app/AppTestWorld.h"

namespace {

QtWindow* offen(QtWindowFactory& f, const char* name) {
    HeadlessWindow* w = f.find(QString::fromUtf8(name));
    return w && !w->isUnloaded() ? dynamic_cast<QtWindow*>(w) : nullptr;
}

TEST(QtLogDatenModal, DetailsAndBrowserEndByTheirCloseBoxes) {
    app_test::World world;
    auto qt = std::make_shared<QtWindowFactory>();
    services().windows = qt;
    world.sql(
        "INSERT INTO SYS_JobAgentLogDaten (DatumUhrzeit, LogTyp, Herkunft, Text) VALUES "
        "('2026-11-20 05:00:00', 1, 'Dienst', 'gestartet'),"
        "('2026-11-21 06:00:00', 3, 'Starter', 'nicht gestartet');");

    QStringList gesehen;
    cLogDaten o;
    QTimer::singleShot(0, [&] {
        QtWindow* browser = offen(*qt, "frmLogDaten");
        ASSERT_NE(browser, nullptr);
        gesehen << browser->widget()->windowTitle();
        QTimer::singleShot(0, [&] {
            QtWindow* details = offen(*qt, "frmLogDatenDetails");
            ASSERT_NE(details, nullptr);
            gesehen << details->widget()->windowTitle();
            details->widget()->close();
            QTimer::singleShot(0, [&] {
                if (QtWindow* b = offen(*qt, "frmLogDaten")) {
                    gesehen << QStringLiteral("Browser offen");
                    b->widget()->close();
                }
            });
        });
        dynamic_cast<UserActions*>(browser->headlessControl(QStringLiteral("ctlLogDaten")))
            ->userBrowserOpen(2);
    });
    o.fLogDatenShow(1, 0);

    EXPECT_EQ(gesehen, (QStringList{"Suite  Logdaten Dienst", "Suite  Logdaten Dienst - Details",
                                    "Browser offen"}));
    EXPECT_EQ(offen(*qt, "frmLogDaten"), nullptr);
    EXPECT_EQ(offen(*qt, "frmLogDatenDetails"), nullptr);
    EXPECT_TRUE(world.ui->reports.empty());
}

}  // namespace
