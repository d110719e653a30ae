#include "headless/HeadlessWindow.h"

#include <QRegularExpression>

#include <algorithm>

#include "common/ErrObject.h"
#include "headless/HeadlessChoices.h"
#include "headless/HeadlessSimpleControls.h"
#include "headless/HeadlessToolBar.h"
#include "headless/HeadlessValueControls.h"

HeadlessWindow::HeadlessWindow(const WindowDecl& decl, std::shared_ptr<HeadlessKitContext> kit)
    : decl_(decl), kit_(std::move(kit)), caption_(decl.caption) {
    if (kit_) {
        kit_->windows.push_back(this);
    }
}

HeadlessWindow::~HeadlessWindow() {
    if (kit_) {
        std::erase(kit_->windows, this);
    }
    focused_ = nullptr;
    controls_.clear();
}

void HeadlessWindow::build() {
    controls_.clear();
    for (const ControlDecl& d : decl_.controls) {
        std::unique_ptr<HeadlessControl> c = makeControl(d);
        if (!c) {
            throw RaisedError(
                ErrNumber::Internal,
                QStringLiteral("%1: kein Steuerelement für %2").arg(decl_.name, d.name),
                QStringLiteral("headless"));
        }
        controls_.push_back(std::move(c));
    }
}

std::unique_ptr<HeadlessControl> HeadlessWindow::makeControl(const ControlDecl& decl) {
    return makeHeadlessControl(decl, *this);
}

// --- state ---

void HeadlessWindow::setCaption(const QString& text) {
    caption_ = text;
    stateChanged();
}

void HeadlessWindow::markShown(bool modal) {
    if (modal && modalOpen_) {
        throw RaisedError(400,
                          QStringLiteral("Formular wird bereits angezeigt; kann nicht modal "
                                         "angezeigt werden (%1)")
                              .arg(decl_.name),
                          QStringLiteral("headless"));
    }
    unloaded_ = false;
    visible_ = true;
    if (modal) {
        modalOpen_ = true;
    }
    stateChanged();
}

void HeadlessWindow::Show(bool modal) {
    markShown(modal);
    ModalDriver* driver = modalDriver();
    if (!modal || !driver) {
        return;
    }
    // The driver plays the user until the window is closed; the window may be destroyed
    // meanwhile, so nothing of it is touched afterwards.
    const QString name = decl_.name;
    driver->runModal(name);
}

void HeadlessWindow::Hide() {
    visible_ = false;
    modalOpen_ = false;
    stateChanged();
}

void HeadlessWindow::Unload() {
    if (unloaded_) {
        return;
    }
    unloaded_ = true;
    modalOpen_ = false;
    std::weak_ptr<void> life = life_;
    if (events_.onUnload) {
        auto handler = events_.onUnload;
        handler();
    }
    if (life.expired()) {
        return;
    }
    visible_ = false;
    stateChanged();
}

void HeadlessWindow::CloseByUser() {
    bool cancel = false;
    std::weak_ptr<void> life = life_;
    if (events_.onQueryUnload) {
        auto handler = events_.onQueryUnload;
        handler(cancel);
    }
    if (life.expired() || cancel) {
        return;
    }
    Unload();
}

void HeadlessWindow::setMousePointer(int pointer) {
    mousePointer_ = pointer;
    stateChanged();
}

void HeadlessWindow::setEvents(WindowEvents events) {
    events_ = std::move(events);
}

void HeadlessWindow::setIconPicture(long pictureId) {
    icon_ = pictureId;
    stateChanged();
}

void HeadlessWindow::setToolPicture(const QString& tool, long pictureId) {
    toolPictures_.insert(tool, pictureId);
    for (const auto& c : controls_) {
        if (auto* bar = dynamic_cast<HeadlessToolBar*>(c.get())) {
            bar->setToolPicture(tool, pictureId);
        }
    }
}

// --- controls ---

HeadlessControl* HeadlessWindow::headlessControl(const QString& name, int index) const {
    for (const auto& c : controls_) {
        if (c->index() == index && c->name().compare(name, Qt::CaseInsensitive) == 0) {
            return c.get();
        }
    }
    return nullptr;
}

IControl* HeadlessWindow::control(const QString& name, int index) {
    return headlessControl(name, index);
}

QList<HeadlessControl*> HeadlessWindow::controls() const {
    QList<HeadlessControl*> list;
    for (const auto& c : controls_) {
        list << c.get();
    }
    return list;
}

QList<HeadlessControl*> HeadlessWindow::optionGroup(const HeadlessControl& option) const {
    QList<HeadlessControl*> group;
    const auto* self = dynamic_cast<const HeadlessOptionButton*>(&option);
    if (!self) {
        return group;
    }
    const QString key = self->groupKey();
    for (const auto& c : controls_) {
        if (auto* o = dynamic_cast<HeadlessOptionButton*>(c.get()); o && o->groupKey() == key) {
            group << c.get();
        }
    }
    return group;
}

HeadlessControl* HeadlessWindow::tabControl() const {
    for (const auto& c : controls_) {
        if (c->kind() == ControlKind::TabControl) {
            return c.get();
        }
    }
    return nullptr;
}

int HeadlessWindow::tickTimers() {
    std::weak_ptr<void> life = life_;
    QList<HeadlessTimer*> timers;
    for (const auto& c : controls_) {
        if (auto* t = dynamic_cast<HeadlessTimer*>(c.get())) {
            timers << t;
        }
    }
    int ticked = 0;
    for (HeadlessTimer* t : timers) {
        if (life.expired()) {
            break;
        }
        ticked += t->tick() ? 1 : 0;
    }
    return ticked;
}

// --- events ---

bool HeadlessWindow::raise(const ControlEvent& event) {
    std::weak_ptr<void> life = life_;
    if (events_.onControl) {
        auto handler = events_.onControl;
        handler(event);
    }
    return !life.expired();
}

bool HeadlessWindow::moveFocus(HeadlessControl& control) {
    if (focused_ == &control) {
        return true;
    }
    std::weak_ptr<void> life = life_;
    HeadlessControl* former = focused_;
    focused_ = &control;
    if (former) {
        former->focusMoved();
        ControlEvent lost;
        lost.type = EventType::LostFocus;
        lost.control = former->name();
        lost.index = former->index();
        if (!raise(lost)) {
            return false;
        }
    }
    if (life.expired() || focused_ != &control) {
        return !life.expired();
    }
    control.focusMoved();
    ControlEvent got;
    got.type = EventType::GotFocus;
    got.control = control.name();
    got.index = control.index();
    return raise(got);
}

// --- the user ---

void HeadlessWindow::userKey(int keyCode, int shift) {
    if (decl_.keyPreview) {
        if (events_.onKeyDown) {
            auto handler = events_.onKeyDown;
            handler(keyCode, shift);
        }
        return;
    }
    if (focused_) {
        focused_->userKey(keyCode, shift);
    }
}

void HeadlessWindow::userClose() {
    if (!visible_ || unloaded_) {
        throw RaisedError(ErrNumber::Internal,
                          QStringLiteral("%1: das Fenster ist nicht sichtbar").arg(decl_.name),
                          QStringLiteral("headless"));
    }
    CloseByUser();
}

void HeadlessWindow::shot(const QString&) {}

// --- reachability ---

QString HeadlessWindow::containerReason(const ControlDecl& decl, int depth) const {
    if (depth > 32) {
        return QStringLiteral("die Container von %1 bilden einen Kreis").arg(decl.name);
    }
    if (decl.tabPage >= 0) {
        if (auto* tab = dynamic_cast<ITabControl*>(tabControl())) {
            if (!tab->Visible()) {
                return QStringLiteral("%1 ist unsichtbar").arg(tabControl()->fullName());
            }
            if (!tab->Enabled()) {
                return QStringLiteral("%1 ist deaktiviert").arg(tabControl()->fullName());
            }
            if (tab->Tab() != decl.tabPage) {
                return QStringLiteral("%1 steht auf Seite %2 von %3, offen ist Seite %4")
                    .arg(decl.name)
                    .arg(decl.tabPage)
                    .arg(tabControl()->name())
                    .arg(tab->Tab());
            }
        }
    }
    if (decl.container.isEmpty()) {
        return {};
    }
    // A container is named "fraFrame" or, in a control array, "fraFrame(1)".
    static const QRegularExpression indexed(QStringLiteral("^(.*)\\((\\d+)\\)$"));
    const QRegularExpressionMatch m = indexed.match(decl.container.trimmed());
    HeadlessControl* container = m.hasMatch()
                                     ? headlessControl(m.captured(1), m.captured(2).toInt())
                                     : headlessControl(decl.container, -1);
    if (!container) {
        return {};
    }
    if (!container->Visible()) {
        return QStringLiteral("der Container %1 ist unsichtbar").arg(container->fullName());
    }
    if (!container->Enabled()) {
        return QStringLiteral("der Container %1 ist deaktiviert").arg(container->fullName());
    }
    return containerReason(container->decl(), depth + 1);
}

QString HeadlessWindow::unreachableReason(IControl& control) const {
    const auto* c = dynamic_cast<HeadlessControl*>(&control);
    const QString full = c ? c->fullName() : control.name();
    if (!visible_ || unloaded_) {
        return QStringLiteral("das Fenster %1 ist nicht sichtbar").arg(decl_.name);
    }
    if (!control.Visible()) {
        return QStringLiteral("%1 ist unsichtbar").arg(full);
    }
    if (!control.Enabled()) {
        return QStringLiteral("%1 ist deaktiviert").arg(full);
    }
    if (!c) {
        return {};
    }
    const QString reason = containerReason(c->decl(), 0);
    return reason.isEmpty() ? QString() : full + QStringLiteral(": ") + reason;
}

// --- factory ---

HeadlessWindowFactory::HeadlessWindowFactory(ModalDriver* driver)
    : kit_(std::make_shared<HeadlessKitContext>()) {
    kit_->driver = driver;
}

std::unique_ptr<HeadlessWindow> HeadlessWindowFactory::makeWindow(
    const WindowDecl& decl, std::shared_ptr<HeadlessKitContext> kit) {
    return std::make_unique<HeadlessWindow>(decl, std::move(kit));
}

std::unique_ptr<IWindow> HeadlessWindowFactory::create(const WindowDecl& decl) {
    std::unique_ptr<HeadlessWindow> window = makeWindow(decl, kit_);
    window->build();
    return window;
}

QList<HeadlessWindow*> HeadlessWindowFactory::windows() const {
    return QList<HeadlessWindow*>(kit_->windows.begin(), kit_->windows.end());
}

HeadlessWindow* HeadlessWindowFactory::find(const QString& name) const {
    HeadlessWindow* newest = nullptr;
    for (auto it = kit_->windows.rbegin(); it != kit_->windows.rend(); ++it) {
        if ((*it)->name().compare(name, Qt::CaseInsensitive) != 0) {
            continue;
        }
        if (!(*it)->isUnloaded()) {
            return *it;
        }
        if (!newest) {
            newest = *it;
        }
    }
    return newest;
}
