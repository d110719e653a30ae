#include <gtest/gtest.h>

#include "headless/HeadlessKit.h"
#include "tests/common/CommonFakes.h"
#include "ui/windows/frmZeitIntervall.h"

namespace {

// The dialog in memory, shown, with every event it raises kept as text.
struct Dialog {
    Dialog() : scope(recordingServices(std::make_shared<RecordingUi>())) {
        auto w = factory.create(frmZeitIntervall::declaration());
        window = dynamic_cast<HeadlessWindow*>(w.get());
        form = std::make_unique<frmZeitIntervall>(std::move(w));
        auto note = [this](const char* what, int i) {
            events << QStringLiteral("%1 %2").arg(QString::fromUtf8(what)).arg(i);
        };
        form->evFrmZeitintervallCommandButtonClicked = [note](int i) { note("Button", i); };
        form->evFrmZeitintervallOptionHaeufigkeitClicked = [note](int i) {
            note("Haeufigkeit", i);
        };
        form->evFrmZeitintervallOptionMonatlichClicked = [note](int i) { note("Monatlich", i); };
        form->evFrmZeitintervallOptionEnddatumClicked = [note](int i) { note("Enddatum", i); };
        form->evFrmZeitintervallComboboxClicked = [note](int i) { note("Combo", i); };
        form->evFRMZeitplanHilfe = [this] { events << QStringLiteral("Hilfe"); };
        form->window().Show(false);
    }

    HeadlessControl& control(const char* name, int index = -1) {
        HeadlessControl* c = window->headlessControl(QString::fromUtf8(name), index);
        if (!c) {
            throw std::runtime_error(name);
        }
        return *c;
    }
    QStringList take() { return std::exchange(events, {}); }

    ScopedServices scope;
    HeadlessWindowFactory factory;
    HeadlessWindow* window = nullptr;
    std::unique_ptr<frmZeitIntervall> form;
    QStringList events;
};

const ControlDecl& find(const char* name, int index) {
    for (const ControlDecl& c : frmZeitIntervall::declaration().controls) {
        if (c.name == QLatin1String(name) && c.index == index) {
            return c;
        }
    }
    throw std::runtime_error(name);
}

TEST(FrmZeitIntervallDeclaration, CaptionsStandAsTheUserReadsThem) {
    struct Fall {
        const char* name;
        int index;
        const char* caption;
    };
    const Fall faelle[] = {
        {"fraFrame", 0, "Häufigkeit"},
        {"fraFrame", 1, "Täglich"},
        {"fraFrame", 5, "Wöchentlich"},
        {"fraFrame", 2, "Monatlich"},
        {"fraFrame", 3, "Häufigkeit pro Tag"},
        {"fraFrame", 4, "Dauer"},
        {"optHaeufigkeit", 0, "Täglich"},
        {"optHaeufigkeit", 1, "Wöchentlich"},
        {"optHaeufigkeit", 2, "Monatlich"},
        {"optHaeufigkeit", 3, "Einmalig um:"},
        {"optHaeufigkeit", 4, "Jede:"},
        {"optEnddatum", 0, "Enddatum:"},
        {"optEnddatum", 1, "Kein Enddatum"},
        {"cboComboBox", 0, "Alle"},
        {"cboComboBox", 8, "Alle"},
        {"cboComboBox", 1, "Tag"},
        {"cboComboBox", 2, "alle"},
        {"cboComboBox", 3, "Am"},
        {"cboComboBox", 5, "alle"},
        {"cboComboBox", 6, "Am"},
        {"lblLabel", 0, "Tag(e)"},
        {"lblLabel", 1, "Monat(e)"},
        {"lblLabel", 2, "Monat(e)"},
        {"lblLabel", 3, "Woche(n) am:"},
        {"lblLabel", 4, "Startet um"},
        {"lblLabel", 5, "Endet um"},
        {"chkCheckBox", 0, "Mo"},
        {"chkCheckBox", 6, "So"},
        {"ctlDatePicker", 0, "Anfangsdatum"},
        {"cmdCommandButton", 0, "OK"},
        {"cmdCommandButton", 1, "Abbrechen"},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(
            QStringLiteral("%1(%2)").arg(QString::fromUtf8(f.name)).arg(f.index).toStdString());
        EXPECT_EQ(find(f.name, f.index).caption, QString::fromUtf8(f.caption));
    }
    EXPECT_EQ(find("ctlMaskEdBox", 2).kind, ControlKind::TimeBox);
    EXPECT_EQ(frmZeitIntervall::declaration().caption,
              QStringLiteral("Zeitplan für wiederkehrende Aufträge bearbeiten"));
}

TEST(FrmZeitIntervallDeclaration, FourOptionGroupsAndFramesInTheirPlaces) {
    EXPECT_EQ(find("optHaeufigkeit", 0).group, find("optHaeufigkeit", 2).group);
    EXPECT_EQ(find("optHaeufigkeit", 3).group, find("optHaeufigkeit", 4).group);
    EXPECT_NE(find("optHaeufigkeit", 2).group, find("optHaeufigkeit", 3).group);
    EXPECT_EQ(find("optMonatlich", 0).group, find("optMonatlich", 1).group);
    EXPECT_EQ(find("optEnddatum", 0).group, find("optEnddatum", 1).group);
    QSet<QString> gruppen{find("optHaeufigkeit", 0).group, find("optHaeufigkeit", 3).group,
                          find("optMonatlich", 0).group, find("optEnddatum", 0).group};
    EXPECT_EQ(gruppen.size(), 4);
    EXPECT_EQ(find("chkCheckBox", 6).container, QStringLiteral("fraFrame(5)"));
    EXPECT_EQ(find("cboComboBox", 5).container, QStringLiteral("fraFrame(2)"));
    EXPECT_EQ(find("ctlMaskEdBox", 0).container, QStringLiteral("fraFrame(3)"));
}

TEST(FrmZeitIntervall, OptionsOfOneGroupLeaveTheOtherGroupsAlone) {
    Dialog d;
    d.control("optHaeufigkeit", frmZeitIntervall::Haeufigkeit::Woechentlich).userClick();
    d.control("optHaeufigkeit", frmZeitIntervall::Haeufigkeit::Jede).userClick();
    d.control("optMonatlich", frmZeitIntervall::Monatlich::Am).userClick();
    d.control("optEnddatum", frmZeitIntervall::Enddatum::Mit).userClick();
    EXPECT_EQ(d.take(),
              (QStringList{"Haeufigkeit 1", "Haeufigkeit 4", "Monatlich 1", "Enddatum 0"}));
    EXPECT_TRUE(d.form->optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Woechentlich).Value());
    EXPECT_TRUE(d.form->optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Jede).Value());
    // Choosing the option already chosen raises nothing.
    d.control("optHaeufigkeit", frmZeitIntervall::Haeufigkeit::Woechentlich).userClick();
    d.control("optHaeufigkeit", frmZeitIntervall::Haeufigkeit::EinmaligUm).userClick();
    EXPECT_EQ(d.take(), QStringList{"Haeufigkeit 3"});
    EXPECT_TRUE(d.form->optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Woechentlich).Value());
    EXPECT_FALSE(d.form->optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Jede).Value());
}

TEST(FrmZeitIntervall, ButtonsCombosKeysAndCloseBoxRaiseTheirEvents) {
    Dialog d;
    d.form->cboComboBox(frmZeitIntervall::Cbo::JedeEinheit).AddItem(4, QStringLiteral("Minute(n)"));
    d.form->cboComboBox(frmZeitIntervall::Cbo::JedeEinheit).setKey(4);  // by code: silent
    d.control("cboComboBox", frmZeitIntervall::Cbo::JedeEinheit).userSelect(4);
    d.control("cmdCommandButton", frmZeitIntervall::Cmd::Ok).userClick();
    d.window->userKey(112, 0);
    d.window->userKey(112, 1);
    d.control("ctlMaskEdBox", frmZeitIntervall::Zeit::StartetUm).userKey(112, 0);
    d.control("chkCheckBox", 2).userClick();  // the controller reads the boxes when it needs
    d.window->userClose();
    EXPECT_EQ(d.take(), (QStringList{"Combo 7", "Button 0", "Hilfe", "Hilfe", "Button 1"}));
}

}  // namespace
