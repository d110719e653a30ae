#include "gui/LayoutFrmZeitplan.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "gui/QtWindow.h"
#include "ui/windows/frmZeitplan.h"

namespace {

using Z = frmZeitplan;

constexpr int kMargin = 8;
// The fields of the single run stand indented below the option that enables them.
constexpr int kOptionColumn = 0;
constexpr int kCaptionColumn = 1;
constexpr int kFieldColumn = 2;

class ScheduleLayout {
  public:
    explicit ScheduleLayout(QtWindow& window) : window_(window) {}

    void run() {
        auto* column = new QVBoxLayout(window_.widget());
        column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
        auto* head = new QGridLayout;
        head->setColumnStretch(1, 1);
        if (QtControlView* name = view("txtTextBox", Z::Txt::Name)) {
            put(head, name->captionLabel(), 0, 0);
            put(head, name->widget(), 0, 1);
        }
        put(head, widget("chkCheckBox"), 1, 1);
        column->addLayout(head);
        if (QtControlView* frame = view("frmFrame", Z::Fra::Zeitplantyp)) {
            column->addWidget(frame->widget());
            typeFrame(frame->area(-1));
        }
        if (QtControlView* list = view("fraNaechsteAusfuehrungen")) {
            column->addWidget(list->widget(), 1);
            if (QWidget* area = list->area(-1)) {
                auto* inner = new QVBoxLayout(area);
                inner->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
                if (QWidget* grid = widget("grdNaechsteAusfuehrungen")) {
                    inner->addWidget(grid);
                }
            }
        } else {
            column->addStretch(1);
        }
        auto* buttons = new QHBoxLayout;
        buttons->addStretch(1);
        for (int index : {Z::Cmd::Ok, Z::Cmd::Abbrechen}) {
            if (QWidget* w = widget("cmdCommandButton", index)) {
                buttons->addWidget(w);
            }
        }
        column->addLayout(buttons);
    }

  private:
    QtControlView* view(const char* name, int index = -1) const {
        return window_.view(QString::fromUtf8(name), index);
    }
    QWidget* widget(const char* name, int index = -1) const {
        QtControlView* v = view(name, index);
        return v ? v->widget() : nullptr;
    }
    static void put(QGridLayout* grid, QWidget* w, int row, int col, int span = 1) {
        if (w) {
            grid->addWidget(w, row, col, 1, span);
        }
    }

    void typeFrame(QWidget* area) {
        if (!area) {
            return;
        }
        auto* grid = new QGridLayout(area);
        grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
        grid->setColumnStretch(kFieldColumn + 1, 1);
        put(grid, widget("optOption", Z::Opt::Einmal), 0, kOptionColumn);
        if (QtControlView* date = view("ctlDatePicker")) {
            put(grid, date->captionLabel(), 0, kCaptionColumn);
            put(grid, date->widget(), 0, kFieldColumn);
        }
        put(grid, widget("lblLabel", Z::Lbl::Uhrzeit), 1, kCaptionColumn);
        put(grid, widget("ctlMaskEdBox"), 1, kFieldColumn);
        put(grid, widget("optOption", Z::Opt::Wiederholt), 2, kOptionColumn, 4);
        if (QtControlView* inner = view("frmFrame", Z::Fra::Intervall)) {
            put(grid, inner->widget(), 3, kOptionColumn, 4);
            recurrence(inner->area(-1));
        }
    }

    void recurrence(QWidget* area) {
        if (!area) {
            return;
        }
        auto* column = new QVBoxLayout(area);
        column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
        if (QWidget* text = widget("lblLabel", Z::Lbl::Intervall)) {
            column->addWidget(text);
        }
        auto* row = new QHBoxLayout;
        if (QWidget* change = widget("cmdCommandButton", Z::Cmd::Aendern)) {
            row->addWidget(change);
        }
        row->addStretch(1);
        column->addLayout(row);
    }

    QtWindow& window_;
};

}  // namespace

void layoutFrmZeitplan(QtWindow& window) {
    ScheduleLayout(window).run();
}
