#include "gui/QtToolBar.h"

#include <QApplication>
#include <QMenu>
#include <QStyle>
#include <QToolButton>

namespace {

QIcon toolIcon(const QString& name) {
    static const QHash<QString, QStyle::StandardPixmap> icons{
        {QStringLiteral("new"), QStyle::SP_FileIcon},
        {QStringLiteral("neu"), QStyle::SP_FileIcon},
        {QStringLiteral("save"), QStyle::SP_DialogSaveButton},
        {QStringLiteral("delete"), QStyle::SP_TrashIcon},
        {QStringLiteral("löschen"), QStyle::SP_TrashIcon},
        {QStringLiteral("first"), QStyle::SP_MediaSkipBackward},
        {QStringLiteral("previous"), QStyle::SP_ArrowBack},
        {QStringLiteral("next"), QStyle::SP_ArrowForward},
        {QStringLiteral("last"), QStyle::SP_MediaSkipForward},
        {QStringLiteral("bearbeiten"), QStyle::SP_FileDialogDetailedView},
        {QStringLiteral("auftrag ausführen"), QStyle::SP_MediaPlay},
    };
    const auto it = icons.constFind(name.toLower());
    if (it == icons.constEnd()) {
        return {};
    }
    return QApplication::style()->standardIcon(*it);
}

}  // namespace

void applyTool(QAction& action, const ITool& tool) {
    if (tool.IsSeparator()) {
        action.setSeparator(true);
        action.setVisible(tool.Visible());
        return;
    }
    action.setText(tool.Caption());
    action.setToolTip(tool.ToolTip().isEmpty() ? QString(tool.Caption()).remove(QLatin1Char('&'))
                                               : tool.ToolTip());
    action.setEnabled(tool.Enabled());
    action.setVisible(tool.Visible());
    if (action.icon().isNull()) {
        action.setIcon(toolIcon(tool.Name()));
    }
}

QString QtToolBar::key(const QString& band, const QString& tool) {
    return band.toLower() + QLatin1Char('\n') + tool.toLower();
}

QtToolBar::QtToolBar(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    bar_ = new QToolBar(parent);
    bar_->setMovable(false);
    bar_->setFloatable(false);
    bar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const QStringList bands = Bands();
    const bool menus = bands.size() > 1;
    for (const QString& band : bands) {
        QWidget* holder = bar_;
        if (menus) {
            auto* button = new QToolButton(bar_);
            button->setObjectName(band);
            button->setText(band);
            button->setPopupMode(QToolButton::InstantPopup);
            auto* menu = new QMenu(button);
            button->setMenu(menu);
            bar_->addWidget(button);
            holder = menu;
        }
        for (HeadlessTool* tool : bandTools(band)) {
            auto* action = new QAction(holder);
            action->setObjectName(band + QLatin1Char('.') + tool->Name());
            holder->addAction(action);
            applyTool(*action, *tool);
            actionsOfTool_[tool] << action;
            if (tool->IsSeparator()) {
                continue;
            }
            actions_.insert(key(band, tool->Name()), action);
            const QString name = tool->Name();
            QObject::connect(action, &QAction::triggered, guard(), [this, band, name] {
                WidgetCall::run([&] { HeadlessToolBar::userTool(band, name); });
            });
        }
    }
    attach(bar_, nullptr);
}

QAction* QtToolBar::action(const QString& band, const QString& tool) const {
    return actions_.value(key(band, tool));
}

void QtToolBar::refresh() {
    for (auto it = actionsOfTool_.constBegin(); it != actionsOfTool_.constEnd(); ++it) {
        for (const QPointer<QAction>& action : it.value()) {
            if (action) {
                applyTool(*action, *it.key());
            }
        }
    }
}

void QtToolBar::toolChanged(HeadlessTool& tool) {
    for (const QPointer<QAction>& action : actionsOfTool_.value(&tool)) {
        if (action) {
            applyTool(*action, tool);
        }
    }
}

void QtToolBar::userTool(const QString& band, const QString& tool) {
    QAction* a = action(band, tool);
    if (!a || !a->isEnabled() || !a->isVisible()) {
        HeadlessToolBar::userTool(band, tool);  // refuses
        return;
    }
    throughWidget([a] { a->trigger(); });
}
