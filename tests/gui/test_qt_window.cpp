#include <gtest/gtest.h>
#include <QDir>
#include <QGroupBox>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "QtTestKit.h"
#include "gui/QtStaticControls.h"

using namespace qt_test;

namespace {

// A window in the shape of the job editor: a tab control, a frame on the first page with a
// field and its choice button, the closing buttons, a timer.
WindowDecl editorWindow() {
    WindowDecl d;
    d.name = QStringLiteral("frmEditor");
    d.caption = QStringLiteral("Paket bearbeiten");
    d.width = 600;
    d.height = 480;
    ControlDecl tab = decl("tabControl", ControlKind::TabControl);
    tab.tabCaptions = QStringList{QStringLiteral("Allgemein"), QStringLiteral("Zeitpläne")};
    d.controls << tab;
    ControlDecl name = decl("txtTextBox", ControlKind::TextBox, 0, "Name");
    name.tabPage = 0;
    d.controls << name;
    ControlDecl frame = decl("fraImport", ControlKind::Frame, -1, "Verzeichnisse");
    frame.tabPage = 0;
    d.controls << frame;
    ControlDecl dir = decl("txtTextBox", ControlKind::TextBox, 3, "Importdaten");
    dir.container = QStringLiteral("fraImport");
    ControlDecl choose = decl("cmdCommandButton", ControlKind::Button, 2, "...",
                              "Verzeichnis der Importdaten auswählen");
    choose.container = QStringLiteral("fraImport");
    d.controls << dir << choose;
    ControlDecl newSchedule = decl("cmdCommandButton", ControlKind::Button, 3, "&Neu");
    newSchedule.tabPage = 1;
    d.controls << newSchedule;
    d.controls << decl("cmdCommandButton", ControlKind::Button, 0, "OK");
    d.controls << decl("cmdCommandButton", ControlKind::Button, 1, "Abbrechen");
    ControlDecl timer = decl("ctlTimer", ControlKind::Timer);
    timer.interval = 100;
    d.controls << timer;
    return d;
}

bool isInside(QWidget* widget, QWidget* ancestor) {
    for (QWidget* w = widget; w; w = w->parentWidget()) {
        if (w == ancestor) {
            return true;
        }
    }
    return false;
}

QRect placeOf(QWidget* w, QWidget* root) {
    return QRect(w->mapTo(root, QPoint(0, 0)), w->size());
}

TEST(QtWindowLayout, ControlsStandOnTheirPagesAndInTheirFrames) {
    RecordedWindow w(editorWindow());
    w.show();
    auto* tabs = qobject_cast<QTabWidget*>(w.view("tabControl").widget());
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(tabs->tabText(1), "Zeitpläne");
    QWidget* root = w.window().widget();
    EXPECT_EQ(root->windowTitle(), "Paket bearbeiten");
    EXPECT_TRUE(isInside(w.view("txtTextBox", 0).widget(), tabs->widget(0)));
    EXPECT_TRUE(isInside(w.view("cmdCommandButton", 3).widget(), tabs->widget(1)));
    QWidget* frame = w.view("fraImport").widget();
    EXPECT_EQ(qobject_cast<QGroupBox*>(frame)->title(), "Verzeichnisse");
    EXPECT_TRUE(isInside(w.view("txtTextBox", 3).widget(), frame));

    // The choice button stands right of its field; the closing buttons below everything.
    const QRect field = placeOf(w.view("txtTextBox", 3).widget(), root);
    const QRect chooser = placeOf(w.view("cmdCommandButton", 2).widget(), root);
    EXPECT_GT(chooser.left(), field.right());
    EXPECT_LT(std::abs(chooser.center().y() - field.center().y()), field.height());
    const QRect ok = placeOf(w.view("cmdCommandButton", 0).widget(), root);
    const QRect cancel = placeOf(w.view("cmdCommandButton", 1).widget(), root);
    EXPECT_GT(ok.top(), placeOf(tabs, root).bottom());
    EXPECT_GT(cancel.left(), ok.right());
    EXPECT_EQ(w.view("cmdCommandButton", 2).widget()->toolTip(),
              "Verzeichnis der Importdaten auswählen");
}

TEST(QtWindowLayout, TabSwitchOfTheUserRaisesTabClickAndCodeSwitchesSilently) {
    RecordedWindow w(editorWindow());
    auto& tab = w.window().get<HeadlessTabControl>(QStringLiteral("tabControl"));
    auto* tabs = qobject_cast<QTabWidget*>(w.view("tabControl").widget());
    tab.userTab(1);
    EXPECT_EQ(tab.Tab(), 1);
    EXPECT_EQ(tabs->currentIndex(), 1);
    tab.setTab(0);
    EXPECT_EQ(tabs->currentIndex(), 0);
    tab.setTabEnabled(1, false);
    EXPECT_FALSE(tabs->isTabEnabled(1));
    EXPECT_THROW(tab.userTab(1), RaisedError);
    EXPECT_EQ(w.take(), (QStringList{"TabClick tabControl 0"}));
}

TEST(QtWindowLayout, TimerTicksWhileEnabled) {
    RecordedWindow w(editorWindow());
    auto& timer = w.window().get<QtTimer>(QStringLiteral("ctlTimer"));
    EXPECT_TRUE(timer.running());
    EXPECT_TRUE(QTest::qWaitFor([&] { return w.take().contains("Timer ctlTimer"); }, 2000));
    timer.setEnabled(false);
    EXPECT_FALSE(timer.running());
}

TEST(QtWindowLife, CloseBoxAsksThenUnloads) {
    RecordedWindow w(editorWindow());
    w.show();
    w.cancelUnload = true;
    w.window().userClose();
    EXPECT_TRUE(w.window().widget()->isVisible());
    EXPECT_EQ(w.windowEvents, QStringList{"QueryUnload"});
    w.cancelUnload = false;
    w.window().widget()->close();
    EXPECT_EQ(w.windowEvents, (QStringList{"QueryUnload", "QueryUnload", "Unload"}));
    EXPECT_FALSE(w.window().widget()->isVisible());
    EXPECT_FALSE(w.window().Visible());
    EXPECT_THROW(w.window().userClose(), RaisedError);
}

TEST(QtWindowLife, KeyPreviewSeesTheKeysBeforeTheControls) {
    WindowDecl d = editorWindow();
    d.keyPreview = true;
    RecordedWindow w(d);
    w.show();
    auto* name = qobject_cast<QLineEdit*>(w.view("txtTextBox", 0).keyTarget());
    QTest::keyClick(name, Qt::Key_F1);
    QTest::keyClicks(name, QStringLiteral("x"));
    EXPECT_EQ(w.windowEvents, (QStringList{"KeyDown 112/0", "KeyDown 88/0"}));
    // The text is typed all the same; the control's KeyDown went to the window.
    EXPECT_EQ(w.take(), QStringList{"Change txtTextBox(0)"});

    w.window().get<ITextBox>(QStringLiteral("txtTextBox"), 0).SetFocus();
    w.take();
    w.window().userKey(112, 1);
    EXPECT_EQ(w.windowEvents.last(), "KeyDown 112/1");
    EXPECT_TRUE(w.take().isEmpty());
}

TEST(QtWindowLife, KeysWithoutPreviewGoToTheFocusedControl) {
    RecordedWindow w(editorWindow());
    w.show();
    w.window().userKey(112, 0);  // nothing has the focus: nowhere
    w.window().get<ITextBox>(QStringLiteral("txtTextBox"), 0).SetFocus();
    w.window().userKey(46, 0);
    EXPECT_EQ(w.take(), (QStringList{"GotFocus txtTextBox(0)", "KeyDown txtTextBox(0) 46/0"}));
    EXPECT_TRUE(w.windowEvents.isEmpty());
}

class ClosingDriver : public ModalDriver {
  public:
    std::function<void()> play;
    QStringList shown;
    void runModal(const QString& name) override {
        shown << name;
        if (play) {
            play();
        }
    }
};

TEST(QtWindowLife, ModalShowingHandsTheWindowToTheDriver) {
    ClosingDriver driver;
    RecordedWindow w(editorWindow(), &driver);
    bool visibleInside = false;
    driver.play = [&] {
        visibleInside = w.window().widget()->isVisible();
        w.window().get<HeadlessButton>(QStringLiteral("cmdCommandButton"), 0).userClick();
        w.window().userClose();
    };
    w.window().Show(true);
    EXPECT_EQ(driver.shown, QStringList{"frmEditor"});
    EXPECT_TRUE(visibleInside);
    EXPECT_EQ(w.take(), QStringList{"Click cmdCommandButton(0)"});
    EXPECT_FALSE(w.window().IsModalOpen());
    EXPECT_FALSE(w.window().widget()->isVisible());
}

TEST(QtWindowLife, ModalShowingWithoutDriverRunsUntilTheWindowCloses) {
    RecordedWindow w(editorWindow());
    QTimer::singleShot(0, [&] {
        EXPECT_TRUE(w.window().IsModalOpen());
        EXPECT_EQ(w.window().widget()->windowModality(), Qt::ApplicationModal);
        QTest::mouseClick(qobject_cast<QPushButton*>(w.view("cmdCommandButton", 1).widget()),
                          Qt::LeftButton);
        w.window().Unload();
    });
    w.window().Show(true);
    EXPECT_EQ(w.take(), QStringList{"Click cmdCommandButton(1)"});
    EXPECT_FALSE(w.window().IsModalOpen());
}

TEST(QtWindowLife, ShotSavesAPictureOfTheWindow) {
    QTemporaryDir dir;
    RecordedWindow w(editorWindow());
    w.show();
    const QString file = dir.filePath(QStringLiteral("bilder/editor.png"));
    w.window().shot(file);
    const QImage image(file);
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.size(), w.window().widget()->size() * w.window().widget()->devicePixelRatio());
}

TEST(QtWindowLife, WindowGoingAwayInItsOwnEventLeavesNoDanglingWidget) {
    auto w = std::make_unique<RecordedWindow>(editorWindow());
    w->show();
    QPointer<QWidget> root = w->window().widget();
    auto* ok = qobject_cast<QPushButton*>(w->view("cmdCommandButton", 0).widget());
    WindowEvents events;
    events.onControl = [&](const ControlEvent&) { w.reset(); };
    w->window().setEvents(events);
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_EQ(w, nullptr);
    EXPECT_FALSE(root.isNull());  // deleted later, not under its own feet
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(root.isNull());
}

TEST(QtWindowLife, FailureInAnEventComesOutOfTheUserActionNotOutOfQt) {
    RecordedWindow w(editorWindow());
    w.show();
    WindowEvents events;
    events.onControl = [](const ControlEvent&) {
        throw RaisedError(ErrNumber::Internal, QStringLiteral("abgebrochen"),
                          QStringLiteral("test"));
    };
    events.onQueryUnload = [](bool&) {
        throw RaisedError(ErrNumber::Internal, QStringLiteral("abgebrochen"),
                          QStringLiteral("test"));
    };
    w.window().setEvents(events);
    auto& ok = w.window().get<HeadlessButton>(QStringLiteral("cmdCommandButton"), 0);
    EXPECT_THROW(ok.userClick(), RaisedError);
    // The real mouse has no one to hand the failure to: the event loop goes on.
    EXPECT_NO_THROW(QTest::mouseClick(
        qobject_cast<QPushButton*>(w.view("cmdCommandButton", 0).widget()), Qt::LeftButton));
    EXPECT_THROW(w.window().userClose(), RaisedError);
}

TEST(QtWindowFactoryTest, WidgetOfGivesTheWindowsWidgetOnlyForQtWindows) {
    QtWindowFactory qt;
    std::unique_ptr<IWindow> window = qt.create(editorWindow());
    EXPECT_EQ(widgetOf(*window), dynamic_cast<QtWindow&>(*window).widget());
    HeadlessWindowFactory memory;
    std::unique_ptr<IWindow> other = memory.create(editorWindow());
    EXPECT_EQ(widgetOf(*other), nullptr);
}

}  // namespace
