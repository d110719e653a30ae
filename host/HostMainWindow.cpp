#include "host/HostMainWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>

namespace {

QString key(const QString& band, const QString& tool) {
    return band + QLatin1Char('/') + tool;
}

}  // namespace

HostMainWindow::HostMainWindow(const QString& title, const QList<ToolDecl>& menuTools) {
    setWindowTitle(title);
    resize(1000, 640);

    QMenu* file = menuBar()->addMenu(QStringLiteral("&Datei"));
    file->setObjectName(QStringLiteral("menuDatei"));
    QAction* exportItem = file->addAction(QStringLiteral("Aufträge exportieren…"));
    exportItem->setObjectName(QStringLiteral("mnuExportieren"));
    exportItem->setToolTip(
        QStringLiteral("Speichert die markierten Aufträge, ohne Markierung alle, in einer Datei"));
    connect(exportItem, &QAction::triggered, this, [this] {
        if (onExport) {
            onExport();
        }
    });
    QAction* importItem = file->addAction(QStringLiteral("Aufträge importieren…"));
    importItem->setObjectName(QStringLiteral("mnuImportieren"));
    importItem->setToolTip(QStringLiteral("Legt die Aufträge einer Datei als neue Aufträge an"));
    connect(importItem, &QAction::triggered, this, [this] {
        if (onImport) {
            onImport();
        }
    });
    file->addSeparator();
    QAction* quit = file->addAction(QStringLiteral("&Beenden"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);

    for (const QString& band : {QStringLiteral("Bearbeiten"), QStringLiteral("Ansicht")}) {
        addBandMenu(band, menuTools);
    }
    // Where several workstations share a database, the list shows what the others saved once
    // it is read again.
    if (auto* view = findChild<QMenu*>(QStringLiteral("menuAnsicht"))) {
        view->addSeparator();
        QAction* refresh = view->addAction(QStringLiteral("Aktualisieren"));
        refresh->setObjectName(QStringLiteral("mnuAktualisieren"));
        refresh->setShortcut(QKeySequence::Refresh);
        refresh->setToolTip(QStringLiteral("Liest die Liste der Aufträge neu aus der Datenbank"));
        connect(refresh, &QAction::triggered, this, [this] {
            if (onRefresh) {
                onRefresh();
            }
        });
        QAction* plan = view->addAction(QStringLiteral("Ausführungsplan…"));
        plan->setObjectName(QStringLiteral("mnuAusfuehrungsplan"));
        plan->setToolTip(
            QStringLiteral("Zeigt, wann die aktiven Aufträge nach ihren Zeitplänen starten"));
        connect(plan, &QAction::triggered, this, [this] {
            if (onPlan) {
                onPlan();
            }
        });
    }

    QMenu* help = menuBar()->addMenu(QStringLiteral("&Hilfe"));
    help->setObjectName(QStringLiteral("menuHilfe"));
    QAction* helpItem = help->addAction(QStringLiteral("Hilfe zu den automatischen Aufträgen"));
    helpItem->setShortcut(QKeySequence::HelpContents);
    connect(helpItem, &QAction::triggered, this, [this] {
        if (onTool) {
            onTool(QStringLiteral("mnuHilfeDokument"));
        }
    });

    hint_ = new QLabel(this);
    endHint_ = new QLabel(this);
    statusBar()->addWidget(hint_, 1);
    statusBar()->addPermanentWidget(endHint_);
}

void HostMainWindow::addBandMenu(const QString& band, const QList<ToolDecl>& tools) {
    QMenu* menu = menuBar()->addMenu(QLatin1Char('&') + band);
    menu->setObjectName(QStringLiteral("menu") + band);
    for (const ToolDecl& t : tools) {
        if (t.band != band) {
            continue;
        }
        if (t.isSeparator()) {
            menu->addSeparator();
            continue;
        }
        QAction* action = menu->addAction(t.caption);
        action->setToolTip(t.hint);
        action->setEnabled(false);
        action->setObjectName(t.name);
        const QString tool = t.name;
        connect(action, &QAction::triggered, this, [this, tool] {
            if (onTool) {
                onTool(tool);
            }
        });
        actions_.insert(key(band, t.name), action);
    }
}

void HostMainWindow::setList(QWidget* list) {
    if (list) {
        setCentralWidget(list);
    }
}

void HostMainWindow::setToolEnabled(const QString& band, const QString& tool, bool enabled) {
    if (QAction* a = actions_.value(key(band, tool))) {
        a->setEnabled(enabled);
    }
}

void HostMainWindow::followTools(IToolBar& bar) {
    for (auto it = actions_.cbegin(); it != actions_.cend(); ++it) {
        const QString band = it.key().section(QLatin1Char('/'), 0, 0);
        const QString tool = it.key().section(QLatin1Char('/'), 1);
        if (const ITool* t = bar.Tool(band, tool)) {
            it.value()->setEnabled(t->Enabled());
        }
    }
}

bool HostMainWindow::isToolEnabled(const QString& band, const QString& tool) const {
    const QAction* a = actions_.value(key(band, tool));
    return a && a->isEnabled();
}

void HostMainWindow::showProgress(const QString& hint, const QString& endHint) {
    hint_->setText(hint);
    endHint_->setText(endHint);
}

void HostMainWindow::closeEvent(QCloseEvent* event) {
    if (onClose) {
        onClose();
    }
    event->accept();
}
