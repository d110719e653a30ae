#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>

#include "ui/Controls.h"
#include "ui/ToolBar.h"

// A list of tools the logic adds at run time: the browser's tool bar and its context menu.
class IToolList {
  public:
    virtual ~IToolList() = default;
    // Type 5 is a separator. Gives the tool.
    virtual ITool* Add(const QString& name, int type, const QString& caption, long picture) = 0;
    // Adds a tool of another list (the same tool, shown here too).
    virtual void AddTool(ITool* tool) = 0;
    virtual ITool* Item(const QString& name) = 0;
    virtual int Count() const = 0;
    virtual ITool* At(int i) = 0;
};

// A column of the browser with the two flags the logic sets.
struct BrowserColumn {
    QString name;
    bool SpalteFlagA = false;  // key column: kept but not shown
    bool SpalteFlagB = false;  // sortable and searchable
};

// Name and value pairs to look a row up by.
using CValues = QList<QPair<QString, QVariant>>;

// The browser's selection. Rows count from 1; row 0 is the heading, so RowCount is one more
// than RecordCount.
class ISelectionObject {
  public:
    virtual ~ISelectionObject() = default;
    virtual int RowCount() const = 0;
    virtual int RecordCount() const = 0;
    virtual int SelCount() const = 0;
    // The i-th selected row, i from 0, in the order of selection.
    virtual int SelRow(int i) const = 0;
    virtual int Row() const = 0;
    // Makes the row the current and only selected row.
    virtual void setRow(int row) = 0;
    virtual void SetSelected(int row, bool on) = 0;
    // The row's columns as name and value pairs, in the order of the columns.
    virtual QList<QPair<QString, QVariant>> Item(int row) const = 0;
    // The first row whose columns hold all the values, 0 when there is none.
    virtual int FindRow(const CValues& values) const = 0;
};

// The browser control: a list over a query with its own tool bar and context menu.
class IBrowser : public virtual IControl {
  public:
    virtual QString Titel() const = 0;
    virtual void setTitel(const QString& text) = 0;
    virtual QString Schluessel() const = 0;
    virtual void setSchluessel(const QString& key) = 0;
    virtual QString Abfrage() const = 0;
    virtual void setAbfrage(const QString& sql) = 0;
    virtual long MitarbeiterId() const = 0;
    virtual void setMitarbeiterId(long id) = 0;
    virtual QString MitarbeiterName() const = 0;
    virtual void setMitarbeiterName(const QString& name) = 0;
    virtual long Modus() const = 0;
    virtual void setModus(long mode) = 0;

    // Runs the query and fills; Refresh runs it again keeping the column settings.
    virtual void Load() = 0;
    // Words a search looked for: the browser marks where a word of a cell begins with one.
    virtual QStringList SuchWoerter() const = 0;
    virtual void setSuchWoerter(const QStringList& words) = 0;
    virtual void Refresh(bool flag) = 0;
    // The host's notification target and main object, which the browser may replace.
    virtual void AttachHost(void*& oNotify, void*& oMain) = 0;
    // A tool the system does not know.
    virtual void ToolAktion(const QString& tool) = 0;
    // A tool's state changed.
    virtual void ToolStatus(ITool* tool) = 0;

    // The columns of the last load, by name. A column asked for before a load brings it keeps
    // its flags for that load.
    virtual QStringList SpaltenNamen() const = 0;
    virtual BrowserColumn* Spalte(const QString& name) = 0;

    virtual IToolList& Tools() = 0;
    virtual IToolList& Menu() = 0;
    virtual ISelectionObject& Auswahl() = 0;
};
