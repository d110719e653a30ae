#include "gui/LayoutFrmLogDatenDetails.h"

#include <QToolBar>

#include "gui/QtAutoLayout.h"
#include "gui/QtToolBar.h"
#include "gui/QtWindow.h"

void layoutFrmLogDatenDetails(QtWindow& window) {
    autoLayout(window);
    auto* bar = dynamic_cast<QtToolBar*>(window.view(QStringLiteral("tbrMain")));
    if (!bar) {
        return;
    }
    QAction* aktVon = bar->action(QStringLiteral("barMain"), QStringLiteral("AktVon"));
    auto* toolBar = qobject_cast<QToolBar*>(bar->widget());
    if (!aktVon || !toolBar) {
        return;
    }
    if (QWidget* anzeige = toolBar->widgetForAction(aktVon)) {
        anzeige->setAttribute(Qt::WA_TransparentForMouseEvents);
        anzeige->setFocusPolicy(Qt::NoFocus);
    }
}
