#include "gui/LayoutFrmLogDaten.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "gui/QtWindow.h"

namespace {

// A search box with its caption in the row; the day boxes are as wide as a day.
void addBox(QHBoxLayout* row, QtControlView* box, int width) {
    if (!box) {
        return;
    }
    if (QLabel* caption = box->captionLabel()) {
        row->addWidget(caption);
    }
    if (width > 0) {
        box->widget()->setFixedWidth(width);
    }
    row->addWidget(box->widget(), width > 0 ? 0 : 1);
}

}  // namespace

void layoutFrmLogDaten(QtWindow& window) {
    auto* column = new QVBoxLayout(window.widget());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* search = new QHBoxLayout;
    search->setContentsMargins(6, 6, 6, 6);
    search->setSpacing(6);
    addBox(search, window.view(QStringLiteral("txtSuchen")), 0);
    const int day = window.widget()->fontMetrics().horizontalAdvance(QStringLiteral("00.00.00000"));
    addBox(search, window.view(QStringLiteral("txtSuchenVon")), day);
    addBox(search, window.view(QStringLiteral("txtSuchenBis")), day);
    if (QtControlView* hits = window.view(QStringLiteral("lblSuchTreffer"))) {
        hits->widget()->setMinimumWidth(day * 2);
        search->addWidget(hits->widget());
    }
    column->addLayout(search);
    if (QtControlView* browser = window.view(QStringLiteral("ctlLogDaten"))) {
        column->addWidget(browser->widget(), 1);
    }
}
