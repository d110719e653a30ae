#include "gui/LayoutFrmPakete.h"

#include <QVBoxLayout>

#include "gui/QtWindow.h"

void layoutFrmPakete(QtWindow& window) {
    QWidget* root = window.widget();
    auto* column = new QVBoxLayout(root);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    // The bar stands above the list should it ever be shown; as declared it is hidden.
    if (QtControlView* bar = window.view(QStringLiteral("barMenu")); bar && bar->widget()) {
        column->addWidget(bar->widget());
    }
    if (QtControlView* browser = window.view(QStringLiteral("ctlPakete"))) {
        column->addWidget(browser->widget(), 1);
    }
}
