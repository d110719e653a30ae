#include "gui/QtAutoLayout.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTextEdit>
#include <QVBoxLayout>
#include <algorithm>

#include "gui/QtWindow.h"

namespace {

enum class Role {
    None,     // no widget: timer, dialogs
    Bar,      // a tool bar: at the top of the window
    Field,    // a value with a caption to its left
    Chooser,  // a button without caption or with "...": beside the field before it
    Command,  // a button: in the button row of its area
    Check,    // check box and option button: a row of their own
    Label,
    Block,      // frame or picture: the controls declared in it
    Stretcher,  // grid, browser, tab control, text of many lines: takes the height left
};

struct Item {
    HeadlessControl* control = nullptr;
    QtControlView* view = nullptr;
};

bool isChooser(const HeadlessControl& c) {
    const auto* button = dynamic_cast<const IButton*>(&c);
    return button && (button->Caption().isEmpty() || button->Caption() == QLatin1String("..."));
}

Role roleOf(const Item& item) {
    if (!item.view || !item.view->widget()) {
        return Role::None;
    }
    switch (item.control->kind()) {
        case ControlKind::ToolBar:
            return Role::Bar;
        case ControlKind::TextBox:
            return item.control->decl().multiLine ? Role::Stretcher : Role::Field;
        case ControlKind::ComboBox:
        case ControlKind::DatePicker:
        case ControlKind::TimeBox:
        case ControlKind::Selection:
            return Role::Field;
        case ControlKind::Button:
            return isChooser(*item.control) ? Role::Chooser : Role::Command;
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
            return Role::Check;
        case ControlKind::Label:
            return Role::Label;
        case ControlKind::Frame:
        case ControlKind::Picture:
            return Role::Block;
        case ControlKind::Grid:
        case ControlKind::Browser:
        case ControlKind::TabControl:
            return Role::Stretcher;
        default:
            return Role::None;
    }
}

// The buttons that end a dialog stand to the right of the button row.
bool closesDialog(const HeadlessControl& c) {
    const auto* button = dynamic_cast<const IButton*>(&c);
    if (!button) {
        return false;
    }
    static const QSet<QString> closing{
        QStringLiteral("ok"),        QStringLiteral("abbrechen"), QStringLiteral("übernehmen"),
        QStringLiteral("schließen"), QStringLiteral("hilfe"),     QStringLiteral("ja"),
        QStringLiteral("nein"),
    };
    QString caption = button->Caption();
    caption.remove(QLatin1Char('&'));
    return closing.contains(caption.trimmed().toLower());
}

// Time boxes and date pickers are as wide as their value; other fields take the row.
bool keepsItsWidth(const Item& item) {
    return item.control->kind() == ControlKind::TimeBox ||
           item.control->kind() == ControlKind::DatePicker;
}

bool hasOwnCaption(const Item& item) {
    const QLabel* label = item.view->captionLabel();
    return label && !label->text().isEmpty();
}

class AutoLayout {
  public:
    explicit AutoLayout(QtWindow& window) : window_(window) {}

    void run() {
        QWidget* root = window_.widget();
        auto* column = new QVBoxLayout(root);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        auto* content = new QWidget(root);
        content->setObjectName(QStringLiteral("content"));

        QList<Item> top;
        for (HeadlessControl* c : window_.controls()) {
            Item item{c, dynamic_cast<QtControlView*>(c)};
            if (roleOf(item) == Role::Bar) {
                column->addWidget(item.view->widget());
                continue;
            }
            QWidget* area = areaOf(item);
            if (area) {
                children_[area] << item;
            } else {
                top << item;
            }
        }
        column->addWidget(content, 1);
        fill(content, top, true);
    }

  private:
    // The frame, picture or tab page the control stands in; nullptr for the window.
    QWidget* areaOf(const Item& item) const {
        const ControlDecl& d = item.control->decl();
        if (!d.container.isEmpty()) {
            static const QRegularExpression indexed(QStringLiteral("^(.*)\\((\\d+)\\)$"));
            const QRegularExpressionMatch m = indexed.match(d.container.trimmed());
            QtControlView* container = m.hasMatch()
                                           ? window_.view(m.captured(1), m.captured(2).toInt())
                                           : window_.view(d.container.trimmed());
            if (container && container->area(-1) && container != item.view) {
                return container->area(-1);
            }
        }
        if (d.tabPage >= 0) {
            if (auto* tabs = dynamic_cast<QtControlView*>(window_.tabControl())) {
                return tabs->area(d.tabPage);
            }
        }
        return nullptr;
    }

    // Lays out the items in the area; true when it has something that takes the height left.
    bool fill(QWidget* area, const QList<Item>& items, bool outer) {
        auto* grid = new QGridLayout(area);
        if (!outer) {
            grid->setContentsMargins(6, 6, 6, 6);
        }
        grid->setColumnStretch(1, 1);
        int row = 0;
        bool stretches = false;
        // Check boxes and options line up with the fields when the area has captions.
        const bool captions = std::any_of(items.begin(), items.end(), [](const Item& i) {
            return roleOf(i) == Role::Field && hasOwnCaption(i);
        });
        const int checkColumn = captions ? 1 : 0;
        int fieldRow = -1;  // the row of the last field whose right cell is free
        QList<QWidget*> captionCell;
        QList<QWidget*> leftButtons;
        QList<QWidget*> rightButtons;

        auto fullRow = [&](QWidget* w, bool stretch) {
            grid->addWidget(w, row, 0, 1, 3);
            if (stretch) {
                grid->setRowStretch(row, 1);
                stretches = true;
            }
            fieldRow = -1;
            ++row;
        };
        auto flushCaptions = [&] {
            for (QWidget* w : captionCell) {
                fullRow(w, false);
            }
            captionCell.clear();
        };

        for (int i = 0; i < items.size(); ++i) {
            const Item& item = items[i];
            const Role role = roleOf(item);
            const Item* next = i + 1 < items.size() ? &items[i + 1] : nullptr;
            const Role nextRole = next ? roleOf(*next) : Role::None;
            QWidget* w = item.view ? item.view->widget() : nullptr;
            switch (role) {
                case Role::None:
                case Role::Bar:
                    break;
                case Role::Label:
                    if (nextRole == Role::Field && !hasOwnCaption(*next)) {
                        captionCell << w;
                    } else if (nextRole == Role::Label && !item.control->decl().caption.isEmpty() &&
                               captionCell.isEmpty()) {
                        // A caption and the value it names.
                        grid->addWidget(w, row, 0);
                        grid->addWidget(next->view->widget(), row, 1, 1, 2);
                        fieldRow = -1;
                        ++row;
                        ++i;
                    } else if (fieldRow >= 0 && captionCell.isEmpty()) {
                        grid->addWidget(w, fieldRow, 2);  // the unit after a field
                        fieldRow = -1;
                    } else {
                        flushCaptions();
                        fullRow(w, false);
                    }
                    break;
                case Role::Check:
                    if (nextRole == Role::Field &&
                        item.control->kind() == ControlKind::OptionButton) {
                        captionCell << w;  // the option that chooses the field after it
                        break;
                    }
                    flushCaptions();
                    if (nextRole == Role::Check && item.control->kind() == ControlKind::CheckBox) {
                        // A run of check boxes stands in one row.
                        auto* line = new QHBoxLayout;
                        int j = i;
                        while (j < items.size() && roleOf(items[j]) == Role::Check &&
                               items[j].control->kind() == ControlKind::CheckBox) {
                            line->addWidget(items[j].view->widget());
                            ++j;
                        }
                        if (j - i >= 3) {
                            line->addStretch(1);
                            grid->addLayout(line, row, checkColumn, 1, 3 - checkColumn);
                            fieldRow = -1;
                            ++row;
                            i = j - 1;
                            break;
                        }
                        delete line;
                    }
                    grid->addWidget(w, row, checkColumn, 1, 3 - checkColumn);
                    fieldRow = -1;
                    ++row;
                    break;
                case Role::Field: {
                    auto* cell = new QHBoxLayout;
                    cell->setSpacing(4);
                    for (QWidget* c : captionCell) {
                        cell->addWidget(c);
                    }
                    captionCell.clear();
                    if (QLabel* caption = item.view->captionLabel()) {
                        cell->addWidget(caption);
                    }
                    grid->addLayout(cell, row, 0, Qt::AlignLeft | Qt::AlignVCenter);
                    if (keepsItsWidth(item)) {
                        grid->addWidget(w, row, 1, Qt::AlignLeft | Qt::AlignVCenter);
                    } else {
                        grid->addWidget(w, row, 1);
                    }
                    fieldRow = row;
                    ++row;
                    break;
                }
                case Role::Chooser:
                    w->setMaximumWidth(std::max(
                        32, w->fontMetrics().horizontalAdvance(QStringLiteral("...")) + 20));
                    if (fieldRow >= 0) {
                        grid->addWidget(w, fieldRow, 2);
                        fieldRow = -1;
                    } else {
                        leftButtons << w;
                    }
                    break;
                case Role::Command:
                    (closesDialog(*item.control) ? rightButtons : leftButtons) << w;
                    break;
                case Role::Block: {
                    flushCaptions();
                    const bool inner =
                        fill(item.view->area(-1), children_.value(item.view->area(-1)), false);
                    fullRow(w, inner);
                    break;
                }
                case Role::Stretcher: {
                    flushCaptions();
                    if (item.control->kind() == ControlKind::TabControl) {
                        auto* tabs = dynamic_cast<ITabControl*>(item.control);
                        for (int page = 0; tabs && page < tabs->Tabs(); ++page) {
                            if (QWidget* pageArea = item.view->area(page)) {
                                fill(pageArea, children_.value(pageArea), true);
                            }
                        }
                    }
                    if (QLabel* caption = item.view->captionLabel()) {
                        grid->addWidget(caption, row, 0, Qt::AlignTop);
                        grid->addWidget(w, row, 1, 1, 2);
                        grid->setRowStretch(row, 1);
                        stretches = true;
                        fieldRow = -1;
                        ++row;
                    } else {
                        fullRow(w, true);
                    }
                    break;
                }
            }
        }
        flushCaptions();
        if (outer && !stretches) {
            grid->setRowStretch(row, 1);  // keeps the rows at the top, the buttons at the bottom
            ++row;
        }
        if (!leftButtons.isEmpty() || !rightButtons.isEmpty()) {
            auto* buttons = new QHBoxLayout;
            for (QWidget* b : leftButtons) {
                buttons->addWidget(b);
            }
            buttons->addStretch(1);
            for (QWidget* b : rightButtons) {
                buttons->addWidget(b);
            }
            grid->addLayout(buttons, row, 0, 1, 3);
        }
        return stretches;
    }

    QtWindow& window_;
    QHash<QWidget*, QList<Item>> children_;
};

}  // namespace

void autoLayout(QtWindow& window) {
    AutoLayout(window).run();
}
