#pragma once

#include <QAbstractTableModel>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QTableView>
#include <QTimer>
#include <QToolBar>
#include <optional>

#include "common/ErrObject.h"
#include "gui/QtControl.h"
#include "headless/HeadlessBrowser.h"

// The browser's rows as a table model: the loaded columns as headings, the values as text
// (dates the German way, numbers to the right). Only the rows the view paints are asked for.
class BrowserModel : public QAbstractTableModel {
  public:
    BrowserModel(const HeadlessBrowser& browser, QObject* parent);
    // Takes the rows and columns of the browser anew.
    void reload();
    // The browser goes before the view: the model is empty from now on.
    void detach();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    const QStringList& columns() const { return columns_; }

  private:
    void failed(const RaisedError& e) const;

    const HeadlessBrowser* browser_;
    mutable bool reported_ = false;
    QStringList columns_;
    int rows_ = 0;
};

// The browser: a table view over its rows with its Tools as a tool bar above and its Menu as
// the context menu. Several rows can be selected (SelectionChanged); a double click or Enter
// on a row raises Open; other keys KeyDown. A click on a heading of a sortable column sorts.
class QtBrowser : public QtControl<HeadlessBrowser> {
  public:
    QtBrowser(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);
    ~QtBrowser() override;

    void userBrowserSelect(const QList<int>& rows) override;
    void userBrowserOpen(int row) override;
    void userTool(const QString& band, const QString& tool) override;

    QTableView* view() const { return view_; }
    QToolBar* toolBar() const { return toolBar_; }
    QMenu* menu() const { return menu_; }
    // The action that shows a tool of "Tools" or "Menu", nullptr when there is none.
    QAction* toolAction(const QString& band, const QString& tool) const;

  protected:
    void refresh() override;
    void dataChanged() override;
    void selectionStateChanged() override;
    void toolsChanged() override;
    bool keyPressed(int keyCode, int shift, KeyRoute route) override;

  private:
    struct ToolAction {
        ITool* tool = nullptr;
        QPointer<QAction> action;
    };
    void showSelection();
    void userSelectionChanged();
    void sortByHeading(int section);
    // The user's column order and widths: put back after a load, kept after a change.
    void applyKeptColumns();
    void keepColumns();
    void rebuildTools(HeadlessToolList& list, QWidget* holder, QList<ToolAction>& actions);
    int firstVisibleColumn() const;

    QPointer<QLabel> title_;
    QPointer<QToolBar> toolBar_;
    QPointer<QTableView> view_;
    QPointer<QMenu> menu_;
    QPointer<BrowserModel> model_;
    QList<ToolAction> toolActions_;
    QList<ToolAction> menuActions_;
    QList<int> shownSelection_;
    std::optional<QList<int>> pendingOrder_;
    QPointer<QTimer> keepTimer_;
};
