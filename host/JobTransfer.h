#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

class Database;

// Job definitions carried from one database to another as one versioned JSON document: each
// job's values and its schedules, clients and staff members by their number and name, never
// by a row id, and never an archive password.
namespace JobTransfer {

inline const QString kFormat = QStringLiteral("autojobverw-auftraege");
inline constexpr int kVersion = 1;

// The document of the jobs with the given ids (all jobs when empty), in the order of their
// ids. Throws RaisedError when the database cannot be read.
QByteArray exportJobs(Database& database, const QList<long>& jobIds);

struct ImportResult {
    QStringList problems;      // every problem of the document; nothing written when any
    QStringList imported;      // names of the jobs written, in the document's order
    QStringList nameClashes;   // of those, names that were taken already
    QStringList needPassword;  // of those, jobs whose archive password must be entered
    bool written = false;
};

// Checks the whole document, then writes all its jobs with their schedules in one
// transaction, or none of them, through the same writer as the editor. staffId is written as
// the last editor.
ImportResult importJobs(Database& database, const QByteArray& document, long staffId);

// What the user is told after an import: how many jobs were written, the name clashes, the
// jobs that need a password, then the jobs written; or every problem of the document. Each
// list shows at most `listed` lines and how many more there are (all when negative), so that
// the report of thousands of jobs fits a message box.
QString importReport(const ImportResult& result, int listed = -1);

}  // namespace JobTransfer
