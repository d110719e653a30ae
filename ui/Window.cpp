#include "ui/Window.h"

#include "common/ErrObject.h"

void IWindow::throwMissingControl(const QString& name, int index) {
    const QString full = index >= 0 ? QStringLiteral("%1(%2)").arg(name).arg(index) : name;
    throw RaisedError(ErrNumber::ObjectRequired,
                      QStringLiteral("Das Steuerelement %1 fehlt im Fenster.").arg(full),
                      QStringLiteral("ui"));
}
