#include "gui/LayoutFrmEigenschaften.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "gui/QtWindow.h"
#include "ui/windows/frmEigenschaften.h"

namespace {

using F = frmEigenschaften;

constexpr int kFieldColumn = 1;
constexpr int kChooserColumn = 2;
constexpr int kPanelMargin = 8;
// From a frame's edge to its fields' captions: its border and margin.
constexpr int kPanelIndent = kPanelMargin + 2;

class EditorLayout {
  public:
    explicit EditorLayout(QtWindow& window) : window_(window) {}

    void run() {
        auto* column = new QVBoxLayout(window_.widget());
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(6);
        if (QWidget* bar = widget("tbrMain")) {
            column->addWidget(bar);
        }
        auto* body = new QVBoxLayout;
        body->setContentsMargins(8, 0, 8, 8);
        column->addLayout(body, 1);
        if (QtControlView* tabs = window_.view(QStringLiteral("tabControl"))) {
            body->addWidget(tabs->widget(), 1);
            general(tabs->area(F::Tab::Allgemein));
            schedules(tabs->area(F::Tab::Zeitplaene));
        }
        auto* buttons = new QHBoxLayout;
        buttons->addStretch(1);
        for (int index : {F::Cmd::Ok, F::Cmd::Abbrechen, F::Cmd::Uebernehmen}) {
            addTo(buttons, widget("cmdCommandButton", index));
        }
        body->addLayout(buttons);
    }

  private:
    QWidget* widget(const char* name, int index = -1) const {
        QtControlView* v = window_.view(QString::fromUtf8(name), index);
        return v ? v->widget() : nullptr;
    }
    QLabel* caption(const char* name, int index = -1) const {
        QtControlView* v = window_.view(QString::fromUtf8(name), index);
        return v ? v->captionLabel() : nullptr;
    }
    static void addTo(QBoxLayout* layout, QWidget* w, int stretch = 0) {
        if (w) {
            layout->addWidget(w, stretch);
        }
    }
    static void put(QGridLayout* grid, QWidget* w, int row, int col, int span = 1,
                    Qt::Alignment align = {}) {
        if (w) {
            grid->addWidget(w, row, col, 1, span, align);
        }
    }

    void general(QWidget* page) {
        if (!page) {
            return;
        }
        auto* column = new QVBoxLayout(page);
        // The job's own data keep their height; the panels below take what is left.
        auto* headArea = new QWidget(page);
        headArea->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
        auto* head = new QGridLayout(headArea);
        head->setContentsMargins(0, 0, 0, 0);
        captionWidth_ = widestCaption();
        // The fields of the panels line up with those above, inside their frames' margins.
        head->setColumnMinimumWidth(0, captionWidth_ + kPanelIndent);
        for (QWidget* field : {widget("cboComboBox", F::Cbo::Auftragsart),
                               widget("cboComboBox", F::Cbo::MandKanz), widget("ctlMandant")}) {
            if (field) {
                field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
            }
        }
        head->setColumnStretch(1, 2);
        head->setColumnStretch(2, 1);
        put(head, caption("txtTextBox", F::Txt::Name), 0, 0);
        put(head, widget("txtTextBox", F::Txt::Name), 0, 1, 2);
        put(head, caption("cboComboBox", F::Cbo::Auftragsart), 1, 0);
        put(head, widget("cboComboBox", F::Cbo::Auftragsart), 1, 1);
        put(head, widget("chkCheckBox", F::Chk::Aktiviert), 1, 2);
        put(head, widget("cboComboBox", F::Cbo::MandKanz), 2, 1);
        put(head, widget("ctlMandant"), 2, 2);
        put(head, caption("txtTextBox", F::Txt::Beschreibung), 3, 0, 1, Qt::AlignTop);
        if (QWidget* description = widget("txtTextBox", F::Txt::Beschreibung)) {
            description->setMaximumHeight(description->fontMetrics().lineSpacing() * 4 + 12);
            head->addWidget(description, 3, 1, 1, 2);
        }
        put(head, widget("lblLabel", F::Lbl::Erstellt), 4, 0);
        put(head, widget("lblLabel", F::Lbl::ErstelltDatum), 4, 1);
        if (auto* changed = qobject_cast<QLabel*>(widget("lblLetzteAenderung"))) {
            changed->setWordWrap(false);
            head->addWidget(changed, 4, 2, Qt::AlignRight);
        }
        column->addWidget(headArea);

        // The panels of the job types, in the order the types stack them.
        for (const char* panel : {"fraNivora", "FraTxtImport", "fraImport", "fraBuchungen",
                                  "fraScandokumente", "picBelegarten"}) {
            QtControlView* v = window_.view(QString::fromUtf8(panel));
            if (!v || !v->widget()) {
                continue;
            }
            const bool grows = fill(*v, QString::fromUtf8(panel));
            if (!grows) {
                v->widget()->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
            }
            column->addWidget(v->widget(), grows ? 100 : 0);
        }
        // Takes the height when no panel that grows is shown.
        column->addStretch(1);
        if (QWidget* clock = widget("lblLabel", F::Lbl::RechnerDatum)) {
            clock->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
            column->addWidget(clock);
        }
    }

    // Lays out the controls declared in the panel: fields with their captions, a choice
    // button beside the field before it, check boxes and notes in rows, a grid taking the
    // rest. True when the panel holds something that grows.
    bool fill(QtControlView& panel, const QString& name) {
        QWidget* area = panel.area(-1);
        if (!area) {
            return false;
        }
        auto* grid = new QGridLayout(area);
        grid->setContentsMargins(kPanelMargin, kPanelMargin, kPanelMargin, kPanelMargin);
        grid->setColumnStretch(kFieldColumn, 1);
        grid->setColumnMinimumWidth(0, captionWidth_);
        int row = 0;
        int lastField = -1;
        bool grows = false;
        for (HeadlessControl* c : window_.controls()) {
            if (c->decl().container != name) {
                continue;
            }
            auto* v = dynamic_cast<QtControlView*>(c);
            QWidget* w = v ? v->widget() : nullptr;
            if (!w) {
                continue;
            }
            switch (c->kind()) {
                case ControlKind::TextBox:
                case ControlKind::ComboBox:
                case ControlKind::Selection:
                    put(grid, v->captionLabel(), row, 0);
                    grid->addWidget(w, row, kFieldColumn);
                    lastField = row++;
                    break;
                case ControlKind::Button:
                    w->setMaximumWidth(std::max(
                        32, w->fontMetrics().horizontalAdvance(QStringLiteral("...")) + 20));
                    grid->addWidget(w, lastField >= 0 ? lastField : row++, kChooserColumn);
                    lastField = -1;
                    break;
                case ControlKind::Grid:
                    grid->addWidget(w, row, 0, 1, 3);
                    grid->setRowStretch(row++, 1);
                    grows = true;
                    break;
                case ControlKind::CheckBox:
                    grid->addWidget(w, row++, kFieldColumn, 1, 2);
                    break;
                default:
                    grid->addWidget(w, row++, 0, 1, 3);
                    break;
            }
        }
        return grows;
    }

    int widestCaption() const {
        int widest = 0;
        for (HeadlessControl* c : window_.controls()) {
            auto* v = dynamic_cast<QtControlView*>(c);
            if (QLabel* label = v ? v->captionLabel() : nullptr) {
                widest = std::max(widest, label->fontMetrics().horizontalAdvance(label->text()));
            }
        }
        return widest + 8;
    }

    void schedules(QWidget* page) {
        if (!page) {
            return;
        }
        auto* row = new QHBoxLayout(page);
        addTo(row, widget("grdZeitplan"), 1);
        auto* buttons = new QVBoxLayout;
        for (int index : {F::Cmd::ZeitplanNeu, F::Cmd::ZeitplanBearbeiten, F::Cmd::ZeitplanLoeschen,
                          F::Cmd::ZeitplanKopieren, F::Cmd::Ausfuehrungsplan}) {
            addTo(buttons, widget("cmdCommandButton", index));
        }
        buttons->addStretch(1);
        row->addLayout(buttons);
    }

    QtWindow& window_;
    int captionWidth_ = 0;
};

}  // namespace

void layoutFrmEigenschaften(QtWindow& window) {
    EditorLayout(window).run();
}
