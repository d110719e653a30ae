#pragma once

#include <QComboBox>
#include <QList>
#include <QPointer>
#include <functional>

#include "gui/QtControl.h"
#include "headless/HeadlessValueControls.h"

// One record a selection control offers: its id and what the list shows.
struct SelectionEntry {
    long id = 0;
    QString text;
};

// What a selection control lists: staff members, or clients or offices by its mode.
// Staff members show their name, clients and offices "number name" (an office's number
// with a leading "K"). Read through the service registry's record set; empty when that fails.
QList<SelectionEntry> readSelectionEntries(bool staff, long mode);

// The in-house selection control: a combo box of the records, keeping the chosen id. The
// user's pick sets the id (Change). Staff controls are those whose name holds
// "Mitarbeiter"; all others choose clients (mode bit 0 clear) or offices (set).
class QtSelection : public QtControl<HeadlessSelection> {
  public:
    QtSelection(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);
    ~QtSelection() override;
    void userSelect(long id) override;
    bool staff() const { return staff_; }

  protected:
    void refresh() override;

  private:
    void load();
    int indexOfId(long id) const;

    QPointer<QComboBox> combo_;
    bool staff_;
    bool loaded_ = false;
    long loadedMode_ = 0;
    QList<SelectionEntry> entries_;
};
