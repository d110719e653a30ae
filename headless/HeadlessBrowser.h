#pragma once

#include <QList>
#include <QStringList>
#include <QVariant>
#include <memory>
#include <vector>

#include "browser/BrowserRows.h"
#include "browser/BrowserSettings.h"
#include "headless/HeadlessControl.h"
#include "headless/HeadlessTool.h"

// The browser control: a list over a query with its own tool bar (Tools) and context menu
// (Menu), columns with two flags, and the selection object (the browser itself).
//
// The browser is a view over Abfrage (BrowserRows): Load() counts the rows and reads the first
// page through record sets of the service registry; any other row is read when it is asked
// for, and only a few pages are kept. Sorting by a column is an ORDER BY of the database. The
// columns come from the first load and keep their flags (and their objects) on every later
// load. Load reads the user's sort stored under Schluessel and MitarbeiterId and starts with
// nothing selected and Row 0; Refresh keeps the sort and the selection, which follow their
// records (by the first column, the key of the rows) to where they stand now, and drops those
// that are gone. A failing query throws and leaves the former rows. Rows count from 1; row 0
// is the heading.
//
// For the Qt kit: dataChanged() follows a load and a sort, selectionStateChanged() a change
// of the selection or the current row, toolsChanged() a change of a tool list or of a tool;
// each defaults to stateChanged(), which follows every other change.
class HeadlessBrowser : public HeadlessControl, public IBrowser, public ISelectionObject {
  public:
    HeadlessBrowser(const ControlDecl& decl, HeadlessWindow& window);

    // IBrowser
    QString Titel() const override { return titel_; }
    void setTitel(const QString& text) override;
    QString Schluessel() const override { return schluessel_; }
    void setSchluessel(const QString& key) override;
    QString Abfrage() const override { return abfrage_; }
    void setAbfrage(const QString& sql) override;
    long MitarbeiterId() const override { return mitarbeiterId_; }
    void setMitarbeiterId(long id) override;
    QString MitarbeiterName() const override { return mitarbeiterName_; }
    void setMitarbeiterName(const QString& name) override;
    long Modus() const override { return modus_; }
    void setModus(long mode) override;
    void Load() override;
    QStringList SuchWoerter() const override { return suchWoerter_; }
    void setSuchWoerter(const QStringList& words) override;
    // Reads the rows anew, keeping sort and selection; the flag is not used.
    void Refresh(bool flag) override;
    // Leaves both as they are.
    void AttachHost(void*& oNotify, void*& oMain) override;
    // Kept in aktionen().
    void ToolAktion(const QString& tool) override;
    void ToolStatus(ITool* tool) override;
    QStringList SpaltenNamen() const override;
    BrowserColumn* Spalte(const QString& name) override;
    IToolList& Tools() override { return tools_; }
    IToolList& Menu() override { return menu_; }
    ISelectionObject& Auswahl() override { return *this; }

    // ISelectionObject
    int RowCount() const override { return RecordCount() + 1; }
    int RecordCount() const override { return rows_.count(); }
    int SelCount() const override { return static_cast<int>(selected_.size()); }
    int SelRow(int i) const override;
    int Row() const override { return row_; }
    // 0 clears the selection; a data row becomes the current and only selected row (silent).
    void setRow(int row) override;
    // Adds the row at the end of the selection or takes it out; Row stays.
    void SetSelected(int row, bool on) override;
    QList<QPair<QString, QVariant>> Item(int row) const override;
    // Numbers compare numerically, all else as exact text; 0 when no row matches. Asks the
    // database, so that it is right for rows never read.
    int FindRow(const CValues& values) const override;

    // For tests, the scenario runner and the Qt kit.
    const QStringList& aktionen() const { return aktionen_; }
    QList<int> selectedRows() const { return selected_; }
    // The cell's value: row 1 .. RecordCount; row 0 gives the column's name.
    QVariant cellValue(int row, const QString& column) const;
    // The value as text: "" for NULL, numbers in decimal, text as stored.
    QString cellText(int row, const QString& column) const;
    // The value as the list shows it: dates the German way, all else as cellText.
    static QString displayText(const QVariant& value);
    // The rows as the database gives them (for the Qt kit and tests).
    const BrowserRows& rows() const { return rows_; }
    // The sort in force: column ("" for the key's order) and direction.
    QString sortColumn() const { return rows_.sortColumn(); }
    bool sortAscending() const { return rows_.ascending(); }
    // The settings read at the last load; the Qt kit keeps the columns it shows in them.
    const BrowserSettings& settings() const { return settings_; }
    // Stores the columns as the user left them, with the sort; a failure is reported once.
    void keepColumns(const QList<BrowserSettings::Column>& columns);
    // Whether the column is hidden (SpalteFlagA, the key column).
    bool colHidden(const QString& column) const;
    // How many loads ran.
    int loadCount() const { return loadCount_; }
    // Orders the rows by a column through the database and keeps that sort for the user;
    // the selected records stay selected and current where they stand within the first
    // kSortFollowsWithin rows of the new order.
    void sortBy(const QString& column, bool ascending);

    // The user selects rows, the first current; SelectionChanged. Refused for rows that are
    // not there.
    void userBrowserSelect(const QList<int>& rows) override;
    // A double click on a row: it becomes the current and only selected row (SelectionChanged
    // when that changes the selection), then Open with row.
    void userBrowserOpen(int row) override;
    // band "Tools" or "Menu": ToolClick with the tool's name; refused when there is no such
    // tool, or it is a separator or disabled.
    void userTool(const QString& band, const QString& tool) override;

    static QString valueText(const QVariant& value);

  protected:
    virtual void dataChanged();
    virtual void selectionStateChanged();
    virtual void toolsChanged();

  private:
    int columnIndex(const QString& name) const;
    void checkRow(int row, const char* what) const;
    // The keys of the selected rows and of the current row, for finding them again.
    struct Marks {
        QList<QVariant> selected;
        QVariant current;
    };
    static constexpr int kMarksKept = 1000;
    Marks marks() const;
    void takeColumns(const QStringList& names);
    static constexpr int kSortFollowsWithin = 100000;
    // `within` above 0: a record further down than that many rows is not looked for.
    void restore(const Marks& marks, int within = 0);
    void store();

    QString titel_;
    QString schluessel_;
    QString abfrage_;
    QStringList suchWoerter_;
    long mitarbeiterId_ = 0;
    QString mitarbeiterName_;
    long modus_ = 0;
    std::vector<std::unique_ptr<BrowserColumn>> columns_;
    std::vector<std::unique_ptr<BrowserColumn>> retired_;
    BrowserRows rows_;
    BrowserSettings settings_;
    bool storeFailed_ = false;
    QList<int> selected_;
    int row_ = 0;
    HeadlessToolList tools_;
    HeadlessToolList menu_;
    QStringList aktionen_;
    int loadCount_ = 0;
};
