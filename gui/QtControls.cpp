#include "gui/QtControls.h"

#include "gui/QtBrowser.h"
#include "gui/QtChoices.h"
#include "gui/QtDialogs.h"
#include "gui/QtGrid.h"
#include "gui/QtSelection.h"
#include "gui/QtStaticControls.h"
#include "gui/QtTextBox.h"
#include "gui/QtToolBar.h"
#include "gui/QtValueControls.h"

std::unique_ptr<HeadlessControl> makeQtControl(const ControlDecl& decl, HeadlessWindow& window,
                                               QWidget* parent) {
    switch (decl.kind) {
        case ControlKind::TextBox:
            return std::make_unique<QtTextBox>(decl, window, parent);
        case ControlKind::Label:
            return std::make_unique<QtLabel>(decl, window, parent);
        case ControlKind::CheckBox:
            return std::make_unique<QtCheckBox>(decl, window, parent);
        case ControlKind::OptionButton:
            return std::make_unique<QtOptionButton>(decl, window, parent);
        case ControlKind::ComboBox:
            return std::make_unique<QtComboBox>(decl, window, parent);
        case ControlKind::Button:
            return std::make_unique<QtButton>(decl, window, parent);
        case ControlKind::Frame:
            return std::make_unique<QtFrame>(decl, window, parent);
        case ControlKind::Picture:
            return std::make_unique<QtPicture>(decl, window, parent);
        case ControlKind::Grid:
            return std::make_unique<QtGrid>(decl, window, parent);
        case ControlKind::DatePicker:
            return std::make_unique<QtDatePicker>(decl, window, parent);
        case ControlKind::TimeBox:
            return std::make_unique<QtTimeBox>(decl, window, parent);
        case ControlKind::TabControl:
            return std::make_unique<QtTabControl>(decl, window, parent);
        case ControlKind::Timer:
            return std::make_unique<QtTimer>(decl, window, parent);
        case ControlKind::Selection:
            return std::make_unique<QtSelection>(decl, window, parent);
        case ControlKind::ToolBar:
            return std::make_unique<QtToolBar>(decl, window, parent);
        case ControlKind::Browser:
            return std::make_unique<QtBrowser>(decl, window, parent);
        case ControlKind::FileDialog:
            return std::make_unique<QtFileDialog>(decl, window);
        case ControlKind::DirDialog:
            return std::make_unique<QtDirDialog>(decl, window);
    }
    return nullptr;
}
