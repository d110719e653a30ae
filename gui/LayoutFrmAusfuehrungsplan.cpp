#include "gui/LayoutFrmAusfuehrungsplan.h"

#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "gui/QtWindow.h"
#include "ui/windows/frmAusfuehrungsplan.h"

namespace {

using P = frmAusfuehrungsplan;

QWidget* widget(QtWindow& window, const char* name, int index = -1) {
    QtControlView* v = window.view(QString::fromUtf8(name), index);
    return v ? v->widget() : nullptr;
}

void add(QBoxLayout* layout, QWidget* w, int stretch = 0) {
    if (w) {
        layout->addWidget(w, stretch);
    }
}

}  // namespace

void layoutFrmAusfuehrungsplan(QtWindow& window) {
    auto* column = new QVBoxLayout(window.widget());
    column->setContentsMargins(10, 10, 10, 10);

    auto* filters = new QHBoxLayout;
    for (int index : {P::Cbo::Zeitraum, P::Cbo::Mandant, P::Cbo::Auftragsart}) {
        if (QtControlView* v = window.view(QStringLiteral("cboComboBox"), index)) {
            add(filters, v->captionLabel());
            add(filters, v->widget(), index == P::Cbo::Zeitraum ? 0 : 1);
        }
    }
    column->addLayout(filters);

    auto* steps = new QHBoxLayout;
    add(steps, widget(window, "cmdCommandButton", P::Cmd::Zurueck));
    if (auto* period = qobject_cast<QLabel*>(widget(window, "lblLabel", P::Lbl::Zeitraum))) {
        period->setAlignment(Qt::AlignCenter);
        QFont bold = period->font();
        bold.setBold(true);
        period->setFont(bold);
        add(steps, period, 1);
    }
    add(steps, widget(window, "cmdCommandButton", P::Cmd::Vor));
    add(steps, widget(window, "cmdCommandButton", P::Cmd::Heute));
    column->addLayout(steps);

    add(column, widget(window, "grdPlan"), 1);

    auto* bottom = new QHBoxLayout;
    add(bottom, widget(window, "lblLabel", P::Lbl::Summe), 1);
    add(bottom, widget(window, "cmdCommandButton", P::Cmd::Schliessen));
    column->addLayout(bottom);
}
