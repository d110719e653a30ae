#include "gui/QtWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QLayout>
#include <QStyle>

#include "common/DatabaseFiles.h"
#include "common/ErrObject.h"
#include "gui/QtAutoLayout.h"
#include "gui/QtControls.h"
#include "gui/QtLayouts.h"

namespace {

// There are no pictures of the suite here: every window wears the same neutral icon.
QIcon neutralIcon() {
    const QIcon app = QApplication::windowIcon();
    return app.isNull() ? QApplication::style()->standardIcon(QStyle::SP_FileDialogDetailedView)
                        : app;
}

}  // namespace

// --- widget ---

QtWindowWidget::QtWindowWidget() : QWidget(nullptr, Qt::Window) {}

void QtWindowWidget::closeEvent(QCloseEvent* event) {
    // The window decides; when it unloads, it hides this widget.
    event->ignore();
    if (onClose) {
        onClose();
    }
}

void QtWindowWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (event->spontaneous() && onResize) {
        onResize();
    }
}

// --- window ---

QtWindow::QtWindow(const WindowDecl& decl, std::shared_ptr<HeadlessKitContext> kit)
    : HeadlessWindow(decl, std::move(kit)), root_(new QtWindowWidget) {
    root_->setObjectName(decl.name);
    root_->setWindowTitle(decl.caption);
    root_->setWindowIcon(neutralIcon());
    root_->onClose = [this] {
        if (Visible() && !isUnloaded()) {
            WidgetCall::run([this] { CloseByUser(); });
        }
    };
    root_->onResize = [this] {
        if (events().onResize) {
            auto handler = events().onResize;
            WidgetCall::run([&] { handler(); });
        }
    };
}

QtWindow::~QtWindow() {
    if (loop_) {
        loop_->quit();
    }
    if (root_) {
        root_->onClose = nullptr;
        root_->onResize = nullptr;
        root_->hide();
        if (WidgetCall::active()) {
            root_->deleteLater();  // a widget of this window may be on the stack
        } else {
            delete root_.data();
        }
    }
}

std::unique_ptr<HeadlessControl> QtWindow::makeControl(const ControlDecl& decl) {
    return makeQtControl(decl, *this, root_);
}

QtControlView* QtWindow::view(const QString& name, int index) const {
    return dynamic_cast<QtControlView*>(headlessControl(name, index));
}

void QtWindow::arrange() {
    if (arranged_ || !root_) {
        return;
    }
    arranged_ = true;
    if (const QtLayout layout = qtLayoutFor(name())) {
        layout(*this);
    } else {
        autoLayout(*this);
    }
    const WindowDecl& d = declaration();
    if (d.width > 0 && d.height > 0) {
        root_->resize(d.width, d.height);
    } else {
        root_->resize(root_->sizeHint());
    }
}

void QtWindow::stateChanged() {
    if (!root_) {
        return;
    }
    root_->setWindowTitle(Caption());
    if (MousePointer() == 11) {
        root_->setCursor(Qt::WaitCursor);
    } else {
        root_->unsetCursor();
    }
    if (Visible()) {
        if (root_->isHidden()) {
            arrange();
            if (root_->isWindow()) {
                const Qt::WindowFlags type = IsModalOpen() ? Qt::Dialog : Qt::Window;
                if ((root_->windowFlags() & Qt::WindowType_Mask) != type) {
                    root_->setWindowFlags((root_->windowFlags() & ~Qt::WindowType_Mask) | type);
                }
                root_->setWindowModality(IsModalOpen() ? Qt::ApplicationModal : Qt::NonModal);
            }
            root_->show();
            if (HeadlessControl* focused = focusedControl()) {
                if (auto* v = dynamic_cast<QtControlView*>(focused); v && v->keyTarget()) {
                    v->keyTarget()->setFocus(Qt::OtherFocusReason);
                }
            }
        }
    } else if (!root_->isHidden()) {
        root_->hide();
    }
    if (loop_ && !IsModalOpen()) {
        loop_->quit();
    }
}

void QtWindow::Show(bool modal) {
    arrange();
    if (!modal || modalDriver()) {
        HeadlessWindow::Show(modal);
        return;
    }
    std::weak_ptr<void> life = lifeToken();
    HeadlessWindow::Show(true);
    if (life.expired() || !IsModalOpen()) {
        return;
    }
    QEventLoop loop;
    loop_ = &loop;
    loop.exec(QEventLoop::DialogExec);
    if (!life.expired()) {
        loop_ = nullptr;
    }
}

bool QtWindow::previewKey(int keyCode, int shift) {
    if (!declaration().keyPreview) {
        return false;
    }
    HeadlessWindow::userKey(keyCode, shift);
    return true;
}

void QtWindow::userKey(int keyCode, int shift) {
    auto* focused = dynamic_cast<QtControlView*>(focusedControl());
    QWidget* target = focused ? focused->keyTarget() : nullptr;
    if (!target) {
        HeadlessWindow::userKey(keyCode, shift);
        return;
    }
    throughWidget([&] { sendKey(target, keyCode, shift, KeyRoute::Window); });
}

void QtWindow::userClose() {
    if (!Visible() || isUnloaded() || !root_) {
        HeadlessWindow::userClose();  // refuses
        return;
    }
    throughWidget([this] { root_->close(); });
}

void QtWindow::shot(const QString& file) {
    arrange();
    if (!root_) {
        return;
    }
    root_->ensurePolished();
    if (root_->layout()) {
        root_->layout()->activate();
    }
    DatabaseFiles::refuse(file, QStringLiteral("gui"));
    QDir().mkpath(QFileInfo(file).absolutePath());
    if (!root_->grab().save(file, "PNG")) {
        throw RaisedError(
            ErrNumber::Internal,
            QStringLiteral("%1: das Bild %2 lässt sich nicht speichern").arg(name(), file),
            QStringLiteral("gui"));
    }
}
