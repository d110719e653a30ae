#include "gui/QtLayouts.h"

#include <QHash>

#include "gui/LayoutFrmAusfuehrungsplan.h"
#include "gui/LayoutFrmEigenschaften.h"
#include "gui/LayoutFrmLogDaten.h"
#include "gui/LayoutFrmLogDatenDetails.h"
#include "gui/LayoutFrmPakete.h"
#include "gui/LayoutFrmZeitIntervall.h"
#include "gui/LayoutFrmZeitplan.h"
#include "gui/LayoutFrmZeitplanCopy.h"

namespace {

QHash<QString, QtLayout>& registered() {
    static QHash<QString, QtLayout> layouts{
        {QStringLiteral("frmpakete"), &layoutFrmPakete},
        {QStringLiteral("frmeigenschaften"), &layoutFrmEigenschaften},
        {QStringLiteral("frmzeitintervall"), &layoutFrmZeitIntervall},
        {QStringLiteral("frmzeitplan"), &layoutFrmZeitplan},
        {QStringLiteral("frmausfuehrungsplan"), &layoutFrmAusfuehrungsplan},
        {QStringLiteral("frmzeitplancopy"), &layoutFrmZeitplanCopy},
        {QStringLiteral("frmlogdaten"), &layoutFrmLogDaten},
        {QStringLiteral("frmlogdatendetails"), &layoutFrmLogDatenDetails},
    };
    return layouts;
}

}  // namespace

void registerQtLayout(const QString& windowName, QtLayout layout) {
    registered().insert(windowName.toLower(), std::move(layout));
}

QtLayout qtLayoutFor(const QString& windowName) {
    return registered().value(windowName.toLower());
}
