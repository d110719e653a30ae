#pragma once

#include <QList>
#include <QString>
#include <functional>

class Database;
class QTableView;
class QWidget;

// Export and import of job definitions from the command line and from the menu "Datei".
namespace JobTransfer {

// --export FILE: all jobs. Prints what was done; gives the program's exit code.
int exportCommand(Database& database, const QString& file);
// --import FILE: prints the report; exit code 1 when nothing was written.
int importCommand(Database& database, const QString& file, long staffId);

// The job ids of the rows selected in the list; empty when none is selected.
QList<long> selectedJobIds(const QTableView* list);

// "Aufträge exportieren…": the marked jobs or all, as the user answers, to a file the user
// chooses.
void exportFromMenu(QWidget* parent, Database& database, const QList<long>& marked);
// "Aufträge importieren…": a file the user chooses; written jobs end in refresh().
void importFromMenu(QWidget* parent, Database& database, long staffId,
                    const std::function<void()>& refresh);

}  // namespace JobTransfer
