#include "QtTestKit.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QTest>

namespace qt_test {

namespace {

QString shownText(QWidget* w) {
    if (auto* button = qobject_cast<QAbstractButton*>(w)) {
        return button->text();
    }
    if (auto* box = qobject_cast<QGroupBox*>(w)) {
        return box->title();
    }
    if (auto* label = qobject_cast<QLabel*>(w)) {
        return label->text();
    }
    return {};
}

}  // namespace

void expectDeclaredControlsShown(QtWindow& qt, const WindowDecl& decl, bool checkHints) {
    for (const ControlDecl& d : decl.controls) {
        SCOPED_TRACE(QStringLiteral("%1(%2)").arg(d.name).arg(d.index).toStdString());
        QtControlView* view = qt.view(d.name, d.index);
        ASSERT_NE(view, nullptr);
        if (d.kind == ControlKind::Timer || d.kind == ControlKind::FileDialog ||
            d.kind == ControlKind::DirDialog) {
            continue;
        }
        ASSERT_NE(view->widget(), nullptr);
        if (checkHints) {
            EXPECT_EQ(view->widget()->toolTip(), d.hint);
        }
        if (d.caption.isEmpty()) {
            continue;
        }
        if (QLabel* caption = view->captionLabel()) {
            EXPECT_EQ(caption->text(), d.caption);
        } else {
            EXPECT_EQ(shownText(view->widget()), d.caption);
        }
    }
}

long FakeRecordset::OpenQuery(const QString& sql, long) {
    if (log_) {
        *log_ << sql;
    }
    table_ = {};
    for (const auto& [key, table] : tables_) {
        if (sql.contains(key, Qt::CaseInsensitive)) {
            table_ = table;
            break;
        }
    }
    row_ = 0;
    return table_.rows.size();
}

bool FakeRecordset::Move(long direction) {
    if (direction == MoveNext) {
        ++row_;
    } else if (direction == MoveFirst) {
        row_ = 0;
    }
    return row_ >= 0 && row_ < table_.rows.size();
}

QVariant FakeRecordset::ReadValue(const QString& field) {
    const int c = table_.columns.indexOf(field);
    if (c < 0 || row_ < 0 || row_ >= table_.rows.size()) {
        return {};
    }
    return table_.rows[row_].value(c);
}

RecordedWindow::RecordedWindow(const WindowDecl& d, ModalDriver* driver) : factory_(driver) {
    window_ = factory_.create(d);
    qt_ = dynamic_cast<QtWindow*>(window_.get());
    WindowEvents events;
    events.onControl = [this](const ControlEvent& e) { events_ << describe(e); };
    events.onQueryUnload = [this](bool& cancel) {
        windowEvents << QStringLiteral("QueryUnload");
        cancel = cancelUnload;
    };
    events.onUnload = [this] { windowEvents << QStringLiteral("Unload"); };
    events.onKeyDown = [this](int code, int shift) {
        windowEvents << QStringLiteral("KeyDown %1/%2").arg(code).arg(shift);
    };
    window_->setEvents(std::move(events));
}

RecordedWindow::~RecordedWindow() = default;

QtControlView& RecordedWindow::view(const char* name, int index) {
    QtControlView* v = qt_->view(QString::fromUtf8(name), index);
    if (!v) {
        ADD_FAILURE() << "no control " << name;
        throw std::runtime_error("no control");
    }
    return *v;
}

QStringList RecordedWindow::take() {
    QStringList taken = events_;
    events_.clear();
    return taken;
}

void RecordedWindow::show() {
    qt_->Show(false);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(qt_->widget()));
}

}  // namespace qt_test
