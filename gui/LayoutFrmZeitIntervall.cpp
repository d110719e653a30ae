#include "gui/LayoutFrmZeitIntervall.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "gui/QtWindow.h"
#include "ui/windows/frmZeitIntervall.h"

namespace {

using I = frmZeitIntervall;

class RecurrenceLayout {
  public:
    explicit RecurrenceLayout(QtWindow& window) : window_(window) {}

    void run() {
        auto* column = new QVBoxLayout(window_.widget());
        column->setContentsMargins(10, 10, 10, 10);

        auto* top = new QGridLayout;
        optionColumn();
        put(top, frame(I::Fra::Haeufigkeit), 0, 0);
        // The three frames of the frequencies lie in one cell; the controller shows one.
        for (int index : {I::Fra::Taeglich, I::Fra::Woechentlich, I::Fra::Monatlich}) {
            put(top, frame(index), 0, 1);
        }
        daily();
        weekly();
        monthly();
        top->setColumnStretch(1, 1);
        column->addLayout(top);

        perDay();
        column->addWidget(frame(I::Fra::ProTag));
        duration();
        column->addWidget(frame(I::Fra::Dauer));
        if (QWidget* area = inside(I::Fra::NaechsteAusfuehrungen)) {
            auto* list = new QVBoxLayout(area);
            addTo(list, widget("grdNaechsteAusfuehrungen", -1));
            column->addWidget(frame(I::Fra::NaechsteAusfuehrungen), 1);
        } else {
            column->addStretch(1);
        }

        auto* bottom = new QHBoxLayout;
        addTo(bottom, widget("lblLabel", I::Lbl::Auftragsname), 1);
        addTo(bottom, widget("cmdCommandButton", I::Cmd::Ok));
        addTo(bottom, widget("cmdCommandButton", I::Cmd::Abbrechen));
        column->addLayout(bottom);
    }

  private:
    QWidget* widget(const char* name, int index) const {
        QtControlView* v = window_.view(QString::fromUtf8(name), index);
        return v ? v->widget() : nullptr;
    }
    // The caption of a combo box, as the kit puts it beside the box.
    QWidget* caption(int combo) const {
        QtControlView* v = window_.view(QStringLiteral("cboComboBox"), combo);
        return v ? v->captionLabel() : nullptr;
    }
    QWidget* frame(int index) const { return widget("fraFrame", index); }
    QWidget* inside(int index) const {
        QtControlView* v = window_.view(QStringLiteral("fraFrame"), index);
        return v ? v->area(-1) : nullptr;
    }
    static void put(QGridLayout* grid, QWidget* w, int row, int col, int span = 1) {
        if (w) {
            grid->addWidget(w, row, col, 1, span);
        }
    }
    static void addTo(QBoxLayout* layout, QWidget* w, int stretch = 0) {
        if (w) {
            layout->addWidget(w, stretch);
        }
    }
    // One row: a combo's caption, the combo, and what follows it.
    void comboRow(QGridLayout* grid, int row, int col, int combo) {
        put(grid, caption(combo), row, col);
        put(grid, widget("cboComboBox", combo), row, col + 1);
    }

    void optionColumn() {
        if (QWidget* area = inside(I::Fra::Haeufigkeit)) {
            auto* options = new QVBoxLayout(area);
            for (int index : {I::Haeufigkeit::Taeglich, I::Haeufigkeit::Woechentlich,
                              I::Haeufigkeit::Monatlich}) {
                addTo(options, widget("optHaeufigkeit", index));
            }
            options->addStretch(1);
        }
    }

    void daily() {
        if (QWidget* area = inside(I::Fra::Taeglich)) {
            auto* grid = new QGridLayout(area);
            comboRow(grid, 0, 0, I::Cbo::TageAlle);
            put(grid, widget("lblLabel", I::Lbl::Tage), 0, 2);
            grid->setRowStretch(1, 1);
            grid->setColumnStretch(3, 1);
        }
    }

    void weekly() {
        if (QWidget* area = inside(I::Fra::Woechentlich)) {
            auto* grid = new QGridLayout(area);
            comboRow(grid, 0, 0, I::Cbo::WochenAlle);
            put(grid, widget("lblLabel", I::Lbl::WochenAm), 0, 2, 2);
            auto* days = new QHBoxLayout;
            for (int index = I::Tag::Montag; index <= I::Tag::Sonntag; ++index) {
                addTo(days, widget("chkCheckBox", index));
            }
            grid->addLayout(days, 1, 0, 1, 5);
            grid->setRowStretch(2, 1);
            grid->setColumnStretch(4, 1);
        }
    }

    void monthly() {
        if (QWidget* area = inside(I::Fra::Monatlich)) {
            auto* grid = new QGridLayout(area);
            put(grid, widget("optMonatlich", I::Monatlich::Tag), 0, 0);
            comboRow(grid, 0, 1, I::Cbo::MonatTag);
            comboRow(grid, 0, 3, I::Cbo::MonateAlle);
            put(grid, widget("lblLabel", I::Lbl::MonateTag), 0, 5);
            put(grid, widget("optMonatlich", I::Monatlich::Am), 1, 0);
            comboRow(grid, 1, 1, I::Cbo::AmErster);
            put(grid, widget("cboComboBox", I::Cbo::AmWochentag), 1, 3, 2);
            comboRow(grid, 2, 3, I::Cbo::AmMonateAlle);
            put(grid, widget("lblLabel", I::Lbl::MonateAm), 2, 5);
            grid->setRowStretch(3, 1);
            grid->setColumnStretch(6, 1);
        }
    }

    void perDay() {
        if (QWidget* area = inside(I::Fra::ProTag)) {
            auto* grid = new QGridLayout(area);
            put(grid, widget("optHaeufigkeit", I::Haeufigkeit::EinmaligUm), 0, 0);
            put(grid, widget("ctlMaskEdBox", I::Zeit::EinmaligUm), 0, 1);
            put(grid, widget("optHaeufigkeit", I::Haeufigkeit::Jede), 1, 0);
            comboRow(grid, 1, 1, I::Cbo::JedeAnzahl);
            put(grid, widget("cboComboBox", I::Cbo::JedeEinheit), 1, 3);
            put(grid, widget("lblLabel", I::Lbl::StartetUm), 2, 1);
            put(grid, widget("ctlMaskEdBox", I::Zeit::StartetUm), 2, 2);
            put(grid, widget("lblLabel", I::Lbl::EndetUm), 3, 1);
            put(grid, widget("ctlMaskEdBox", I::Zeit::EndetUm), 3, 2);
            grid->setColumnStretch(4, 1);
        }
    }

    void duration() {
        if (QWidget* area = inside(I::Fra::Dauer)) {
            auto* grid = new QGridLayout(area);
            QtControlView* start = window_.view(QStringLiteral("ctlDatePicker"), 0);
            if (start) {
                put(grid, start->captionLabel(), 0, 0);
                put(grid, start->widget(), 0, 1);
            }
            put(grid, widget("optEnddatum", I::Enddatum::Mit), 0, 2);
            put(grid, widget("ctlDatePicker", I::Datum::Ende), 0, 3);
            put(grid, widget("optEnddatum", I::Enddatum::Ohne), 1, 2);
            grid->setColumnStretch(4, 1);
        }
    }

    QtWindow& window_;
};

}  // namespace

void layoutFrmZeitIntervall(QtWindow& window) {
    RecurrenceLayout(window).run();
}
