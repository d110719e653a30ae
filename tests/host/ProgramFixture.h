#pragma once

#include <gtest/gtest.h>

#include <QTableView>
#include <QTemporaryDir>
#include <memory>

#include "host/DesktopProgram.h"
#include "host/HostMainWindow.h"
#include "suite/SuiteConfig.h"
#include "tests/host/RealInput.h"

// The program as the README's demo command starts it, on a fresh demo database in a
// temporary folder, its program directory there too.
class ProgramFixture : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;
    // Changes the configuration before the program starts on it.
    virtual void configure(SuiteConfig&) {}

    QString root() const { return dir_.path(); }
    HostMainWindow& mainWindow() { return program_->window(); }
    QTableView* list();
    // The first column of the first row of a query on the database file, read beside the
    // program as another program would.
    QString scalar(const QString& sql);
    // Opens a menu of the main window's menu bar and clicks its item.
    void chooseMenu(const QString& menu, const QString& item);
    // Bearbeiten → Neu, then a customers import named so, for the first client and staff
    // member, with its two folders made; "OK", and "Nein" to the backup question.
    void saveNewJobFromTheMenu(const QString& name);
    // Bearbeiten → "Logdaten Dienst löschen" with the window's own period (today), "Ja".
    void deleteTodaysServiceLog();
    // The log entries that the message boxes shown so far say were deleted; every other text
    // but the deletion's question and those expected goes to unexpected.
    qint64 deletedLogEntries(const QStringList& expected, QStringList& unexpected) const;

    QTemporaryDir dir_;
    std::shared_ptr<SuiteConfig> config_;
    std::unique_ptr<DesktopProgram> program_;
    std::unique_ptr<real_input::MessageBoxes> boxes_;
};

inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}
inline void PrintTo(const QStringList& l, std::ostream* os) {
    *os << '[' << l.join(QStringLiteral("] [")).toStdString() << ']';
}
