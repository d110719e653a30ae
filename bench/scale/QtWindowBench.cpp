#include "bench/scale/QtWindowBench.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

#include "common/Clock.h"
#include "gui/QtWindow.h"
#include "gui/QtWindowFactory.h"
#include "host/DesktopProgram.h"
#include "host/HostMainWindow.h"
#include "suite/SuiteConfig.h"
#include "ui/Grid.h"
#include "ui/windows/frmBuchLog.h"
#include "ui/windows/frmZeitplanCopy.h"

namespace {

// The largest table of a window: its grid.
QTableWidget* largestTable(const QWidget* window) {
    QTableWidget* largest = nullptr;
    for (QTableWidget* t : window->findChildren<QTableWidget*>()) {
        if (!largest || t->rowCount() > largest->rowCount()) {
            largest = t;
        }
    }
    return largest;
}

// The log file list: four columns of text, a row for each file, the button enabled as the
// list fills it.
void fillLogFiles(frmBuchLog& frm, int rows) {
    IGrid& grid = frm.grdData();
    grid.setCols(4);
    grid.setRows(1);
    grid.setFixedRows(1);
    grid.setFixedCols(0);
    const QStringList headings{QStringLiteral("Name"), QStringLiteral("Größe"),
                               QStringLiteral("Geändert"), QStringLiteral("Erstellt")};
    constexpr int kWidths[] = {4000, 1000, 2000, 2000};
    for (int c = 0; c < 4; ++c) {
        grid.setTextMatrix(0, c, headings.at(c));
        grid.setColWidth(c, kWidths[c]);
    }
    grid.setEditable(false);
    grid.Refresh();
    for (int i = 1; i <= rows; ++i) {
        grid.AddItem(QString());
        const int row = grid.Rows() - 1;
        frm.cmdCommandButton(frmBuchLog::Cmd::Oeffnen).setEnabled(true);
        grid.setTextMatrix(row, 0, QStringLiteral("Kunden_%1.log").arg(i, 6, 10, QLatin1Char('0')));
        grid.setTextMatrix(row, 1, QStringLiteral("%1 KB").arg(i % 977));
        grid.setTextMatrix(row, 2, QStringLiteral("2026-11-23 12:00:00"));
        grid.setTextMatrix(row, 3, QStringLiteral("2026-11-23 11:59:58"));
    }
    grid.setRow(1);
}

// The schedule copy's job list: a tick and three texts a row, the grid grown row by row.
void fillCopyJobs(frmZeitplanCopy& frm, int rows) {
    IGrid& grid = frm.grdAuftrag();
    grid.setCols(4);
    grid.setRows(1);
    grid.setFixedCols(0);
    grid.setFixedRows(1);
    grid.setFormatString(QStringLiteral("<|<Auftrag|<Typ|<Mandant/Kanzlei"));
    grid.setColBoolean(0, true);
    constexpr int kWidths[] = {350, 2800, 2400, 2600};
    for (int c = 0; c < 4; ++c) {
        grid.setColWidth(c, kWidths[c]);
    }
    grid.Refresh();
    for (int i = 1; i <= rows; ++i) {
        grid.setRows(grid.Rows() + 1);
        const int row = grid.Rows() - 1;
        grid.setCellChecked(row, 0, true);
        grid.setTextMatrix(row, 1, QStringLiteral("Auftrag %1").arg(i, 6, 10, QLatin1Char('0')));
        grid.setCellData(row, 1, QVariant::fromValue<qint64>(i));
        grid.setTextMatrix(row, 2, QStringLiteral("Import Kunden"));
        grid.setTextMatrix(row, 3, QStringLiteral("Mandant %1").arg(i % 300));
    }
}

template <class Form>
GridFill timedFill(QtWindowFactory& factory, int rows, void (*fill)(Form&, int)) {
    Form frm(factory.create(Form::declaration()));
    frm.window().Show(false);
    auto* qt = dynamic_cast<QtWindow*>(&frm.window());
    QApplication::processEvents();
    QElapsedTimer t;
    t.start();
    fill(frm, rows);
    qt->widget()->grab();  // the window drawn once, with the rows it shows
    GridFill r;
    r.ms = static_cast<double>(t.nsecsElapsed()) / 1e6;
    const QTableWidget* table = largestTable(qt->widget());
    r.rows = table ? table->rowCount() : -1;
    frm.window().Hide();
    return r;
}

}  // namespace

GridFill fillLogFileList(int rows) {
    QtWindowFactory factory(nullptr);
    return timedFill<frmBuchLog>(factory, rows, fillLogFiles);
}

GridFill fillScheduleCopyList(int rows) {
    QtWindowFactory factory(nullptr);
    return timedFill<frmZeitplanCopy>(factory, rows, fillCopyJobs);
}

GridFill openHistoryWindow(const QString& path, const QDateTime& now) {
    auto config = std::make_shared<SuiteConfig>(SuiteConfig::defaults());
    config->databasePath = path;
    DesktopProgram program(config, std::make_shared<FixedClock>(now));
    program.start();
    QApplication::processEvents();
    GridFill r;
    QElapsedTimer t;
    // Runs in the history's own event loop, once it is on screen: drawn, measured, closed.
    QTimer::singleShot(0, [&] {
        QWidget* window = QApplication::activeModalWidget();
        if (!window) {
            return;
        }
        window->grab();
        r.ms = static_cast<double>(t.nsecsElapsed()) / 1e6;
        const QTableWidget* table = largestTable(window);
        r.rows = table ? table->rowCount() : -1;
        for (QPushButton* b : window->findChildren<QPushButton*>()) {
            if (b->text() == QStringLiteral("Schließen")) {
                b->click();
                return;
            }
        }
        window->close();
    });
    t.start();
    program.window().onTool(QStringLiteral("Auftragsverlauf"));
    program.end();
    return r;
}
