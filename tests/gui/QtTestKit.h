#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVariant>
#include <memory>
#include <ostream>

#include "common/ErrObject.h"
#include "common/Recordset.h"
#include "common/Services.h"
#include "gui/QtWindow.h"
#include "gui/QtWindowFactory.h"
#include "headless/HeadlessKit.h"
#include "tests/headless/HeadlessTestKit.h"

namespace qt_test {

inline ControlDecl decl(const char* name, ControlKind kind, int index = -1,
                        const char* caption = "", const char* hint = "") {
    ControlDecl d;
    d.name = QString::fromUtf8(name);
    d.kind = kind;
    d.index = index;
    d.caption = QString::fromUtf8(caption);
    d.hint = QString::fromUtf8(hint);
    return d;
}

// Every declared control that has a widget shows under its name with its caption (beside it
// or on it) and, when checkHints is set, its hint as tool tip.
void expectDeclaredControlsShown(QtWindow& qt, const WindowDecl& decl, bool checkHints);

// A window contract on Qt widgets, off screen, with the events it raises kept as text by the
// test. Shown at once, or by show() once the test has connected the events it watches.
template <class Form>
struct QtForm {
    explicit QtForm(bool shownAtOnce = true) {
        auto w = factory.create(Form::declaration());
        qt = dynamic_cast<QtWindow*>(w.get());
        form = std::make_unique<Form>(std::move(w));
        if (shownAtOnce) {
            show();
        }
    }
    void show() {
        form->window().Show(false);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(qt->widget()));
    }
    QWidget* widget(const char* name, int index = -1) {
        QtControlView* v = qt->view(QString::fromUtf8(name), index);
        return v ? v->widget() : nullptr;
    }

    QtWindowFactory factory;
    QtWindow* qt = nullptr;
    std::unique_ptr<Form> form;
    QStringList events;
};

// One line per event, as the in-memory kit's tests write them.
using headless_test::describe;

// A result set: its columns and rows.
struct FakeTable {
    QStringList columns;
    QList<QVariantList> rows;
};

// A read-only record set over canned tables: the first table whose key the statement holds
// answers it. Keeps every statement it was given.
class FakeRecordset : public CRecordset {
  public:
    FakeRecordset(QList<QPair<QString, FakeTable>> tables, QStringList* log)
        : tables_(std::move(tables)), log_(log) {}

    void Connect() override {}
    void Disconnect() override {}
    long OpenQuery(const QString& sql, long) override;
    void Close() override { table_ = {}; }
    void AddNew() override {}
    void Update(long, bool) override {}
    bool Move(long direction) override;
    long Execute(const QString&) override { return 0; }
    bool ReadBool(const QString& f) override { return ReadValue(f).toBool(); }
    QDateTime ReadDate(const QString& f) override { return ReadValue(f).toDateTime(); }
    long ReadLong(const QString& f) override { return ReadValue(f).toLongLong(); }
    QString ReadText(const QString& f) override { return ReadValue(f).toString(); }
    QStringList FieldNames() override { return table_.columns; }
    QVariant ReadValue(const QString& field) override;
    void WriteBool(const QString&, bool) override {}
    void WriteDate(const QString&, const QDateTime&) override {}
    void WriteLong(const QString&, long) override {}
    void WriteText(const QString&, const QString&) override {}

  private:
    QList<QPair<QString, FakeTable>> tables_;
    QStringList* log_;
    FakeTable table_;
    int row_ = 0;
};

// A window of the Qt kit with every event it raises kept as text.
class RecordedWindow {
  public:
    explicit RecordedWindow(const WindowDecl& d, ModalDriver* driver = nullptr);
    ~RecordedWindow();

    QtWindow& window() { return *qt_; }
    template <class T>
    T& get(const char* name, int index = -1) {
        return qt_->get<T>(QString::fromUtf8(name), index);
    }
    // The Qt side of a control.
    QtControlView& view(const char* name, int index = -1);
    // The events since the last call, oldest first.
    QStringList take();
    // Shows the window (offscreen) and lays it out.
    void show();

    QStringList windowEvents;  // "QueryUnload", "Unload", "KeyDown 112/0"
    bool cancelUnload = false;

  private:
    QtWindowFactory factory_;
    std::unique_ptr<IWindow> window_;
    QtWindow* qt_ = nullptr;
    QStringList events_;
};

}  // namespace qt_test
