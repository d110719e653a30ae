#include "gui/LayoutFrmLogDaten.h"

#include <QVBoxLayout>

#include "gui/QtWindow.h"

void layoutFrmLogDaten(QtWindow& window) {
    auto* column = new QVBoxLayout(window.widget());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    if (QtControlView* browser = window.view(QStringLiteral("ctlLogDaten"))) {
        column->addWidget(browser->widget(), 1);
    }
}
