#include "tests/host/RealInput.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>

namespace real_input {

namespace {

QString withoutMnemonic(QString text) {
    return text.remove(QLatin1Char('&'));
}

QPoint rowPoint(QTableView* view, int row) {
    int column = 0;
    while (column < view->model()->columnCount() && view->isColumnHidden(column)) {
        ++column;
    }
    const QModelIndex index = view->model()->index(row - 1, column);
    view->scrollTo(index);
    return view->visualRect(index).center();
}

}  // namespace

QWidget* shownWindow(const QString& name) {
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (w->objectName() == name && w->isVisible()) {
            return w;
        }
    }
    return nullptr;
}

QWidget* find(QWidget* window, const QString& name) {
    if (!window) {
        ADD_FAILURE() << "no window to look for " << name.toStdString() << " in";
        return nullptr;
    }
    auto* w = window->findChild<QWidget*>(name);
    if (!w) {
        ADD_FAILURE() << window->objectName().toStdString() << " has no widget "
                      << name.toStdString();
    }
    return w;
}

QWidget* find(QWidget* window, const QString& array, int index) {
    return find(window, QStringLiteral("%1(%2)").arg(array).arg(index));
}

void click(QWidget* widget) {
    if (!widget) {
        return;
    }
    QTest::mouseClick(widget, Qt::LeftButton, {}, widget->rect().center());
}

void typeOver(QWidget* textBox, const QString& text) {
    if (!textBox) {
        return;
    }
    QWidget* editor = textBox;
    if (!qobject_cast<QLineEdit*>(editor) && !qobject_cast<QPlainTextEdit*>(editor)) {
        if (auto* line = textBox->findChild<QLineEdit*>()) {
            editor = line;
        } else if (auto* lines = textBox->findChild<QPlainTextEdit*>()) {
            editor = lines->viewport();
        }
    }
    QTest::mouseClick(editor, Qt::LeftButton, {}, QPoint(4, editor->height() / 2));
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(editor, Qt::Key_Delete);
    QTest::keyClicks(editor, text);
}

void clickTab(QWidget* tabControl, int page) {
    auto* tabs = qobject_cast<QTabWidget*>(tabControl);
    QTabBar* bar = tabs ? tabs->tabBar() : tabControl ? tabControl->findChild<QTabBar*>() : nullptr;
    if (!bar) {
        ADD_FAILURE() << "no tab bar";
        return;
    }
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(page).center());
}

void clickRow(QTableView* view, int row) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, rowPoint(view, row));
}

void doubleClickRow(QTableView* view, int row) {
    const QPoint p = rowPoint(view, row);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, p);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, p);
}

void rightClickRow(QTableView* view, int row) {
    const QPoint p = rowPoint(view, row);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, p);
    // The context menu comes with the right button's press, as on the desktop.
    QContextMenuEvent event(QContextMenuEvent::Mouse, p, view->viewport()->mapToGlobal(p));
    QApplication::sendEvent(view->viewport(), &event);
}

int rowShowing(QTableView* view, const QString& heading, const QString& text) {
    const QAbstractItemModel* m = view->model();
    for (int c = 0; c < m->columnCount(); ++c) {
        if (m->headerData(c, Qt::Horizontal).toString() != heading) {
            continue;
        }
        for (int r = 0; r < m->rowCount(); ++r) {
            if (m->index(r, c).data().toString() == text) {
                return r + 1;
            }
        }
    }
    return 0;
}

QMenu* openPopup() {
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (auto* menu = qobject_cast<QMenu*>(w); menu && menu->isVisible()) {
            return menu;
        }
    }
    return nullptr;
}

bool clickMenuItem(QMenu* menu, const QString& text) {
    if (!menu) {
        return false;
    }
    for (QAction* a : menu->actions()) {
        if (withoutMnemonic(a->text()) == text) {
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(a).center());
            return true;
        }
    }
    return false;
}

void whenShown(const QString& window, std::function<void(QWidget*)> play, int timeoutMs) {
    auto* timer = new QTimer;
    auto started = std::make_shared<QElapsedTimer>();
    started->start();
    QObject::connect(timer, &QTimer::timeout, [timer, window, play, started, timeoutMs] {
        QWidget* w = shownWindow(window);
        if (!w && started->elapsed() < timeoutMs) {
            return;
        }
        timer->stop();
        timer->deleteLater();
        if (!w) {
            ADD_FAILURE() << "the window " << window.toStdString() << " did not show";
            if (QWidget* modal = QApplication::activeModalWidget()) {
                modal->close();
            }
            return;
        }
        QTest::qWait(20);
        play(w);
    });
    timer->start(10);
}

bool waitFor(const std::function<bool()>& condition, int timeoutMs) {
    return QTest::qWaitFor(condition, timeoutMs);
}

MessageBoxes::MessageBoxes() : timer_(new QTimer) {
    QObject::connect(timer_, &QTimer::timeout, [this] { poll(); });
    timer_->start(10);
}

MessageBoxes::~MessageBoxes() {
    delete timer_;
}

void MessageBoxes::poll() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || !box->isVisible()) {
        return;
    }
    shown_ << box->text();
    const QString wanted = answers_.isEmpty() ? QString() : answers_.takeFirst();
    QAbstractButton* target = nullptr;
    for (QAbstractButton* b : box->buttons()) {
        if (!wanted.isEmpty() && withoutMnemonic(b->text()) == wanted) {
            target = b;
        }
    }
    if (!target) {
        target = box->escapeButton();
    }
    if (!target) {
        target = box->defaultButton();
    }
    if (!target && !box->buttons().isEmpty()) {
        target = box->buttons().first();
    }
    if (target) {
        QTest::mouseClick(target, Qt::LeftButton);
    }
}

}  // namespace real_input
