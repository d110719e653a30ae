#include <gtest/gtest.h>

#include "headless/HeadlessKit.h"
#include "ui/windows/frmOptTextDatName.h"
#include "ui/windows/frmOptTextDateien.h"

namespace {

QString describe(const ControlDecl& c) {
    return QStringLiteral("%1(%2)|%3|%4").arg(c.name).arg(c.index).arg(c.caption, c.hint);
}

QStringList describe(const WindowDecl& d) {
    QStringList lines{d.name + QStringLiteral("|") + d.caption};
    for (const ControlDecl& c : d.controls) {
        lines << describe(c);
    }
    return lines;
}

TEST(TextFileWindowsDeclaration, ControlsCaptionsAndHints) {
    EXPECT_EQ(describe(frmOptTextDateien::declaration()),
              (QStringList{"frmOptTextDateien|Textdateien auswählen", "grdFileNames(-1)||",
                           "ctlOptTextDatei(0)||Auswahl Datenpfad...",
                           "ctlOptTextDatei(1)|...|Dateinamen beginnt mit", "cmdOk(-1)|OK|",
                           "cmdAbbrechen(-1)|Abbrechen|", "ctlCommonDialog(-1)||"}));
    EXPECT_EQ(describe(frmOptTextDatName::declaration()),
              (QStringList{"frmOptTextDatName|Datei beginnt mit...",
                           "ctlOptDateiNameBeginntMit(-1)|Dateiname beginnt mit|", "cmdOk(-1)|OK|",
                           "cmdAbbrechen(-1)|Abbrechen|"}));
}

// The grid window in memory, shown, with three data rows below the heading.
struct Files {
    Files() {
        auto w = factory.create(frmOptTextDateien::declaration());
        window = dynamic_cast<HeadlessWindow*>(w.get());
        form = std::make_unique<frmOptTextDateien>(std::move(w));
        form->evTextDateiAuswaehlen = [this](int row, int index) {
            events << QStringLiteral("Auswaehlen %1 %2").arg(row).arg(index);
        };
        form->evTextDateienUebernehmen = [this] {
            events << QStringLiteral("Uebernehmen visible=%1").arg(window->Visible());
        };
        IGrid& grid = form->grdFileNames();
        grid.setCols(2);
        grid.setRows(4);
        grid.setFixedRows(1);
        form->window().Show(false);
    }
    HeadlessControl& control(const char* name, int index = -1) {
        return *window->headlessControl(QString::fromUtf8(name), index);
    }

    HeadlessWindowFactory factory;
    HeadlessWindow* window = nullptr;
    std::unique_ptr<frmOptTextDateien> form;
    QStringList events;
};

TEST(FrmOptTextDateien, ChoicesGoToTheCurrentDataRow) {
    Files f;
    f.form->grdFileNames().setRow(0);
    f.control("ctlOptTextDatei", frmOptTextDateien::Auswahl::Pfad)
        .userClick();  // the heading: nothing to choose
    f.form->grdFileNames().setRow(2);
    f.control("ctlOptTextDatei", frmOptTextDateien::Auswahl::NamensAnfang).userClick();
    f.control("ctlOptTextDatei", frmOptTextDateien::Auswahl::Pfad).userClick();
    f.control("grdFileNames").userGridClick(3, 1, true);
    EXPECT_EQ(f.events, (QStringList{"Auswaehlen 2 1", "Auswaehlen 2 0", "Auswaehlen 3 0"}));
    EXPECT_TRUE(f.window->Visible());
}

TEST(FrmOptTextDateien, OkTakesOverThenClosesCancelOnlyCloses) {
    Files ok;
    ok.control("cmdOk").userClick();
    EXPECT_EQ(ok.events, QStringList{"Uebernehmen visible=1"});
    EXPECT_TRUE(ok.window->isUnloaded());

    Files cancel;
    cancel.control("cmdAbbrechen").userClick();
    EXPECT_TRUE(cancel.events.isEmpty());
    EXPECT_TRUE(cancel.window->isUnloaded());

    Files released;
    released.form->evTextDateienUebernehmen = [&] { released.form.reset(); };
    released.control("cmdOk").userClick();
    EXPECT_EQ(released.form, nullptr);
}

TEST(FrmOptTextDatName, OkHandsBackTheRowThenCloses) {
    HeadlessWindowFactory factory;
    auto w = factory.create(frmOptTextDatName::declaration());
    auto* window = dynamic_cast<HeadlessWindow*>(w.get());
    frmOptTextDatName form(std::move(w));
    QStringList events;
    form.evTextDateienNamenUebernehmen = [&](int row) {
        events << QStringLiteral("Uebernehmen %1 %2")
                      .arg(row)
                      .arg(form.ctlOptDateiNameBeginntMit().Text());
    };
    form.setRow(3);
    form.ctlOptDateiNameBeginntMit().setText(QStringLiteral("buch_"));
    form.window().Show(false);
    window->headlessControl(QStringLiteral("ctlOptDateiNameBeginntMit"))
        ->userType(QStringLiteral("kasse_"));
    window->headlessControl(QStringLiteral("cmdOk"))->userClick();
    EXPECT_EQ(events, QStringList{"Uebernehmen 3 kasse_"});
    EXPECT_TRUE(window->isUnloaded());

    auto again = factory.create(frmOptTextDatName::declaration());
    auto* second = dynamic_cast<HeadlessWindow*>(again.get());
    frmOptTextDatName cancelled(std::move(again));
    cancelled.evTextDateienNamenUebernehmen = [&](int) { events << QStringLiteral("nein"); };
    cancelled.window().Show(false);
    second->headlessControl(QStringLiteral("cmdAbbrechen"))->userClick();
    EXPECT_EQ(events.size(), 1);
    EXPECT_TRUE(second->isUnloaded());
}

}  // namespace
