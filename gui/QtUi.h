#pragma once

#include <QList>
#include <QMessageBox>
#include <QString>

#include "common/PlatformUi.h"

// One button of a message box: its German text and the answer it gives.
struct MsgBoxButton {
    QString text;
    long answer = 0;
};

// What the classic flags of a message box ask for: the buttons in their order, the default
// and the escape button (indexes, -1 for none) and the icon.
struct MsgBoxLayout {
    QList<MsgBoxButton> buttons;
    int defaultButton = 0;
    int escapeButton = -1;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
};

// Button sets 0..5, icons 16/32/48/64, default buttons 0/256/512.
MsgBoxLayout msgBoxLayout(long flags);

// "Skriptdateien (*.opt)|*.opt|Alle Dateien|*.*" as Qt's name filters, ";;" between them.
QString qtFileFilter(const QString& classicFilter);

// The platform's user interface with real dialogs: message boxes, the suite's error dialog,
// help, the file and directory dialogs and the wait cursor.
class QtUi : public PlatformUi {
  public:
    long MsgBox(const QString& text, long flags, const QString& title) override;
    void ShowErrorReport(long number, const QString& source, const QString& description) override;
    void ShowHelp(const QString& helpFile, const QString& topic) override;
    std::optional<QString> FileDialog(const QString& title, const QString& filter,
                                      const QString& initialDirectory,
                                      const QString& fileName) override;
    std::optional<QString> DirDialog(const QString& title, const QString& start) override;
    void SetMousePointer(int pointer) override;

  private:
    bool waitCursor_ = false;
};
