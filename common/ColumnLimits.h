#pragma once

#include <QString>

// The most characters a text column of jobs and schedules takes on the server, where its type
// has a length; SQLite would take more, and a job saved there could not be saved on the
// other database. The editor's text boxes and the import of job definitions both keep to them.
namespace ColumnLimits {

constexpr int kAuftragName = 100;       // tAutoJobJob.Name
constexpr int kMTAPath = 255;           // tAutoJobJob.MTAPath: the import directory
constexpr int kErrorMTA = 255;          // tAutoJobJob.ErrorMTA: the log directory
constexpr int kFremdDateifilter = 100;  // tAutoJobJob.FremdDateifilter
constexpr int kFremdMapping = 255;      // tAutoJobJob.FremdMapping
constexpr int kZeitplanName = 100;      // tAutoJobSchedule.Name

// Characters as the server counts them: one beyond the 16-bit range is one, not two.
qsizetype characters(const QString& text);
// The first n characters of the text, counted as the server counts them.
QString leftCharacters(const QString& text, qsizetype n);

}  // namespace ColumnLimits
