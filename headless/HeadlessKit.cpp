#include "headless/HeadlessKit.h"

std::unique_ptr<HeadlessControl> makeHeadlessControl(const ControlDecl& decl,
                                                     HeadlessWindow& window) {
    switch (decl.kind) {
        case ControlKind::TextBox:
            return std::make_unique<HeadlessTextBox>(decl, window);
        case ControlKind::Label:
            return std::make_unique<HeadlessLabel>(decl, window);
        case ControlKind::CheckBox:
            return std::make_unique<HeadlessCheckBox>(decl, window);
        case ControlKind::OptionButton:
            return std::make_unique<HeadlessOptionButton>(decl, window);
        case ControlKind::ComboBox:
            return std::make_unique<HeadlessComboBox>(decl, window);
        case ControlKind::Button:
            return std::make_unique<HeadlessButton>(decl, window);
        case ControlKind::Frame:
            return std::make_unique<HeadlessFrame>(decl, window);
        case ControlKind::Picture:
            return std::make_unique<HeadlessPicture>(decl, window);
        case ControlKind::Grid:
            return std::make_unique<HeadlessGrid>(decl, window);
        case ControlKind::DatePicker:
            return std::make_unique<HeadlessDatePicker>(decl, window);
        case ControlKind::TimeBox:
            return std::make_unique<HeadlessTimeBox>(decl, window);
        case ControlKind::TabControl:
            return std::make_unique<HeadlessTabControl>(decl, window);
        case ControlKind::Timer:
            return std::make_unique<HeadlessTimer>(decl, window);
        case ControlKind::Selection:
            return std::make_unique<HeadlessSelection>(decl, window);
        case ControlKind::ToolBar:
            return std::make_unique<HeadlessToolBar>(decl, window);
        case ControlKind::Browser:
            return std::make_unique<HeadlessBrowser>(decl, window);
        case ControlKind::FileDialog:
            return std::make_unique<HeadlessFileDialog>(decl, window);
        case ControlKind::DirDialog:
            return std::make_unique<HeadlessDirDialog>(decl, window);
    }
    return nullptr;
}
