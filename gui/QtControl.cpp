#include "gui/QtControl.h"

#include <QApplication>
#include <QColor>
#include <QFocusEvent>
#include <QtGlobal>

#include "common/ErrObject.h"

void WidgetCall::keep(std::exception_ptr thrown) {
    if (!catchers_.empty()) {
        if (!*catchers_.back()) {
            *catchers_.back() = thrown;
        }
        return;
    }
    QString what = QStringLiteral("unbekannter Fehler");
    try {
        std::rethrow_exception(thrown);
    } catch (const RaisedError& e) {
        what = e.err().Description;
    } catch (const std::exception& e) {
        what = QString::fromLocal8Bit(e.what());
    } catch (...) {
    }
    qWarning("Fehler aus einem Steuerelement: %s", qPrintable(what));
}

void sendKey(QWidget* target, int keyCode, int shift, KeyRoute route, const QString& text,
             Qt::Key qtKey) {
    if (qtKey == Qt::Key_unknown) {
        qtKey = QtKeys::qtKeyOf(keyCode);
    }
    QKeyEvent press(QEvent::KeyPress, qtKey, QtKeys::modifiersOf(shift), text);
    InjectedKey injected{&press, keyCode, shift, route};
    InjectedKey* outer = InjectedKey::current;
    InjectedKey::current = &injected;
    QApplication::sendEvent(target, &press);
    InjectedKey::current = outer;
}

bool WidgetWatcher::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && onKey) {
        auto* key = static_cast<QKeyEvent*>(event);
        const InjectedKey* injected = InjectedKey::current;
        if (injected && injected->event == key) {
            return onKey(injected->keyCode, injected->shift, injected->route);
        }
        return onKey(QtKeys::codeOf(key->key()), QtKeys::shiftOf(key->modifiers()), KeyRoute::User);
    }
    if (event->type() == QEvent::FocusIn && onUserFocus) {
        switch (static_cast<QFocusEvent*>(event)->reason()) {
            case Qt::MouseFocusReason:
            case Qt::TabFocusReason:
            case Qt::BacktabFocusReason:
            case Qt::ShortcutFocusReason:
                onUserFocus();
                break;
            default:
                break;
        }
    }
    return QObject::eventFilter(watched, event);
}

QColor classicColor(long color) {
    if (color < 0) {
        return {};
    }
    return QColor(static_cast<int>(color & 0xFF), static_cast<int>((color >> 8) & 0xFF),
                  static_cast<int>((color >> 16) & 0xFF));
}
