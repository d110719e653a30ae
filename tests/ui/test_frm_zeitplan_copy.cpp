#include <gtest/gtest.h>

#include "headless/HeadlessKit.h"
#include "ui/windows/frmZeitplanCopy.h"

namespace {

QStringList describe(const WindowDecl& d) {
    QStringList lines{d.name + QStringLiteral("|") + d.caption};
    for (const ControlDecl& c : d.controls) {
        lines
            << QStringLiteral("%1(%2)|%3|%4").arg(c.name).arg(c.index).arg(c.caption, c.container);
    }
    return lines;
}

TEST(ScheduleCopyWindowDeclaration, ControlsCaptionsAndFrame) {
    EXPECT_EQ(describe(frmZeitplanCopy::declaration()),
              (QStringList{
                  "frmZeitplanCopy|Zeitplan kopieren", "fraZeitplanCopy(-1)||",
                  "lblZeitplanHinweisCopy(-1)||fraZeitplanCopy", "grdAuftrag(-1)||fraZeitplanCopy",
                  "lblZeitplanCopyInfo(-1)|Zeitplan 'zzz' für xxx von yyy Aufträgen "
                  "kopieren|fraZeitplanCopy",
                  "chkUeberschreiben(-1)|bestehende Zeitpläne überschreiben|", "ctlSeparator(-1)||",
                  "cmdAuswaehlen(-1)|Alle auswählen|", "cmdAbwaehlen(-1)|Alle abwählen|",
                  "ctlSeparator1(-1)||", "cmdOk(-1)|OK|", "cmdAbbrechen(-1)|Abbrechen|"}));
}

// The window in memory, shown, with its events written down.
struct Copy {
    Copy() {
        auto w = factory.create(frmZeitplanCopy::declaration());
        window = dynamic_cast<HeadlessWindow*>(w.get());
        form = std::make_unique<frmZeitplanCopy>(std::move(w));
        form->evZeitplanCopyOk = [this](std::uint8_t& by) {
            events << QStringLiteral("Ok %1").arg(by);
        };
        form->evZeitplanCopyCancel = [this] { events << QStringLiteral("Cancel"); };
        form->evZeitplanWaehlen = [this](bool& bAbwaehlen) {
            events << QStringLiteral("Waehlen %1").arg(bAbwaehlen ? "ab" : "aus");
        };
        form->grdAuftrag_Click = [this](int r, int c) {
            events << QStringLiteral("Click %1 %2").arg(r).arg(c);
        };
        IGrid& g = form->grdAuftrag();
        g.setCols(4);
        g.setRows(3);
        g.setColBoolean(0, true);
        form->window().Show(false);
    }
    HeadlessControl& control(const char* name) {
        return *window->headlessControl(QString::fromUtf8(name), -1);
    }

    HeadlessWindowFactory factory;
    HeadlessWindow* window = nullptr;
    std::unique_ptr<frmZeitplanCopy> form;
    QStringList events;
};

TEST(ScheduleCopyWindow, ButtonsRaiseTheirEventsWithTheOverwriteValue) {
    Copy s;
    s.control("cmdOk").userClick();
    s.control("chkUeberschreiben").userClick();
    s.control("cmdOk").userClick();
    s.control("cmdAbwaehlen").userClick();
    s.control("cmdAuswaehlen").userClick();
    s.control("cmdAbbrechen").userClick();
    EXPECT_EQ(s.events, (QStringList{"Ok 0", "Ok 1", "Waehlen ab", "Waehlen aus", "Cancel"}));
    // The controller decides when the window goes.
    EXPECT_TRUE(s.window->Visible());
}

TEST(ScheduleCopyWindow, GridClicksCarryTheCellClickedAndTheHeadingIsRowZero) {
    Copy s;
    s.control("grdAuftrag").userGridClick(2, 0, false);
    s.control("grdAuftrag").userGridClick(0, 0, false);
    s.control("grdAuftrag").userGridClick(1, 3, false);
    // A double click is no tick.
    s.control("grdAuftrag").userGridClick(1, 0, true);
    EXPECT_EQ(s.events, (QStringList{"Click 2 0", "Click 0 0", "Click 1 3"}));
}

}  // namespace
