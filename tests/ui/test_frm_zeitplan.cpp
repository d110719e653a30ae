#include <gtest/gtest.h>

#include "headless/HeadlessKit.h"
#include "ui/windows/frmZeitplan.h"

namespace {

QStringList describe(const WindowDecl& d) {
    QStringList lines{d.name + QStringLiteral("|") + d.caption};
    for (const ControlDecl& c : d.controls) {
        lines
            << QStringLiteral("%1(%2)|%3|%4").arg(c.name).arg(c.index).arg(c.caption, c.container);
    }
    return lines;
}

TEST(ScheduleWindowDeclaration, ControlsCaptionsAndFrames) {
    EXPECT_EQ(
        describe(frmZeitplan::declaration()),
        (QStringList{"frmZeitplan|Eigenschaften Zeitplan", "txtTextBox(0)|Name|",
                     "chkCheckBox(-1)|Aktiviert|", "frmFrame(0)|Zeitplantyp|",
                     "optOption(2)|Einmal|frmFrame(0)", "ctlDatePicker(-1)|Am (Datum)|frmFrame(0)",
                     "lblLabel(1)|Uhr (Uhrzeit)|frmFrame(0)", "ctlMaskEdBox(-1)||frmFrame(0)",
                     "optOption(3)|Wiederholt|frmFrame(0)", "frmFrame(1)||frmFrame(0)",
                     "lblLabel(0)||frmFrame(1)", "cmdCommandButton(2)|Ändern...|frmFrame(1)",
                     "fraNaechsteAusfuehrungen(-1)|Nächste Ausführungen|",
                     "grdNaechsteAusfuehrungen(-1)||fraNaechsteAusfuehrungen",
                     "cmdCommandButton(0)|OK|", "cmdCommandButton(1)|Abbrechen|"}));
    EXPECT_TRUE(frmZeitplan::declaration().keyPreview);
}

// The window in memory, shown, with its events written down.
struct Schedule {
    Schedule() {
        auto w = factory.create(frmZeitplan::declaration());
        window = dynamic_cast<HeadlessWindow*>(w.get());
        form = std::make_unique<frmZeitplan>(std::move(w));
        form->evFrmZeitplanCommandButtonClicked = [this](int i) {
            events << QStringLiteral("Button %1").arg(i);
        };
        form->evFRMZeitplanOptOptionClicked = [this](int i) {
            events << QStringLiteral("Option %1").arg(i);
        };
        form->evFRMZeitplanHilfe = [this] { events << QStringLiteral("Hilfe"); };
        form->window().Show(false);
    }
    HeadlessControl& control(const char* name, int index = -1) {
        return *window->headlessControl(QString::fromUtf8(name), index);
    }

    HeadlessWindowFactory factory;
    HeadlessWindow* window = nullptr;
    std::unique_ptr<frmZeitplan> form;
    QStringList events;
};

TEST(ScheduleWindow, OptionsRaiseOnlyWhenChosenByCodeOrUser) {
    Schedule s;
    s.form->optOption(frmZeitplan::Opt::Wiederholt).setValue(true);
    s.control("optOption", frmZeitplan::Opt::Einmal).userClick();
    // Choosing the one already chosen changes nothing.
    s.control("optOption", frmZeitplan::Opt::Einmal).userClick();
    EXPECT_EQ(s.events, (QStringList{"Option 3", "Option 2"}));
    EXPECT_FALSE(s.form->optOption(frmZeitplan::Opt::Wiederholt).Value());
}

TEST(ScheduleWindow, ButtonsCloseBoxAndHelpKey) {
    Schedule s;
    for (int i : {0, 1, 2}) {
        s.control("cmdCommandButton", i).userClick();
    }
    s.window->userKey(112, 0);
    s.window->userKey(112, 1);
    s.window->userKey(113, 0);
    // The close box is Abbrechen, and the controller decides when the window goes.
    s.window->userClose();
    EXPECT_EQ(s.events, (QStringList{"Button 0", "Button 1", "Button 2", "Hilfe", "Button 1"}));
    EXPECT_TRUE(s.window->Visible());
}

TEST(ScheduleWindow, EveryFieldButNotTheButtonsAsksForTheNextStarts) {
    Schedule s;
    s.form->evNaechsteAusfuehrungen = [&s] { s.events << QStringLiteral("Liste"); };
    s.form->optOption(frmZeitplan::Opt::Einmal).setValue(true);
    s.form->ctlDatePicker().setValue(QDate(2026, 5, 1));
    s.form->txtTextBox(frmZeitplan::Txt::Name).setText(QStringLiteral("Nacht"));
    s.control("cmdCommandButton", frmZeitplan::Cmd::Ok).userClick();
    // The option's own event comes first, so that the controller has set the fields.
    EXPECT_EQ(s.events, (QStringList{"Option 2", "Liste", "Liste", "Liste", "Button 0"}));
}

}  // namespace
