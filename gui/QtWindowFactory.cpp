#include "gui/QtWindowFactory.h"

#include "gui/QtWindow.h"

QtWindowFactory::QtWindowFactory(ModalDriver* driver) : HeadlessWindowFactory(driver) {}

std::unique_ptr<HeadlessWindow> QtWindowFactory::makeWindow(
    const WindowDecl& decl, std::shared_ptr<HeadlessKitContext> kit) {
    return std::make_unique<QtWindow>(decl, std::move(kit));
}

std::unique_ptr<IWindow> QtWindowFactory::create(const WindowDecl& decl) {
    std::unique_ptr<IWindow> window = HeadlessWindowFactory::create(decl);
    if (auto* qt = dynamic_cast<QtWindow*>(window.get())) {
        qt->arrange();
    }
    return window;
}

QWidget* widgetOf(IWindow& window) {
    auto* qt = dynamic_cast<QtWindow*>(&window);
    if (!qt) {
        return nullptr;
    }
    qt->arrange();
    return qt->widget();
}
