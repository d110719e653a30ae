#include "gui/LayoutFrmZeitplanCopy.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "gui/QtWindow.h"

namespace {

constexpr int kMargin = 8;
constexpr int kSpacing = 6;
constexpr int kGridMinHeight = 160;

class CopyLayout {
  public:
    explicit CopyLayout(QtWindow& window) : window_(window) {}

    void run() {
        auto* column = new QVBoxLayout(window_.widget());
        column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
        column->setSpacing(kSpacing);
        if (QtControlView* frame = view("fraZeitplanCopy")) {
            column->addWidget(frame->widget(), 1);
            frameInside(frame->area(-1));
        }
        add(column, widget("chkUeberschreiben"));
        if (auto* line = separator("ctlSeparator", QFrame::HLine)) {
            column->addWidget(line);
        }
        auto* buttons = new QHBoxLayout;
        buttons->setSpacing(kSpacing);
        add(buttons, widget("cmdAuswaehlen"));
        add(buttons, widget("cmdAbwaehlen"));
        buttons->addStretch(1);
        if (auto* line = separator("ctlSeparator1", QFrame::VLine)) {
            buttons->addWidget(line);
        }
        add(buttons, widget("cmdOk"));
        add(buttons, widget("cmdAbbrechen"));
        column->addLayout(buttons);
    }

  private:
    QtControlView* view(const char* name) const {
        return window_.view(QString::fromUtf8(name), -1);
    }
    QWidget* widget(const char* name) const {
        QtControlView* v = view(name);
        return v ? v->widget() : nullptr;
    }
    static void add(QBoxLayout* layout, QWidget* w, int stretch = 0) {
        if (w) {
            layout->addWidget(w, stretch);
        }
    }

    // A separator is a label without a caption, drawn as a sunken line.
    QWidget* separator(const char* name, QFrame::Shape shape) const {
        auto* label = qobject_cast<QLabel*>(widget(name));
        if (label) {
            label->setFrameShape(shape);
            label->setFrameShadow(QFrame::Sunken);
            label->setWordWrap(false);
        }
        return label;
    }

    void frameInside(QWidget* area) {
        if (!area) {
            return;
        }
        auto* column = new QVBoxLayout(area);
        column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
        column->setSpacing(kSpacing);
        add(column, widget("lblZeitplanHinweisCopy"));
        if (QWidget* grid = widget("grdAuftrag")) {
            grid->setMinimumHeight(kGridMinHeight);
            column->addWidget(grid, 1);
        }
        add(column, widget("lblZeitplanCopyInfo"));
    }

    QtWindow& window_;
};

}  // namespace

void layoutFrmZeitplanCopy(QtWindow& window) {
    CopyLayout(window).run();
}
