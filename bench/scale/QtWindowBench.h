#pragma once

#include <QDateTime>
#include <QString>

// The Qt windows themselves (offscreen) filled with many rows: the time until the window is
// drawn with them, and the rows its grid holds. A QApplication must exist.
struct GridFill {
    double ms = 0;
    qint64 rows = -1;
};

// The log file list and the schedule copy's job list, filled as their controllers fill them.
GridFill fillLogFileList(int rows);
GridFill fillScheduleCopyList(int rows);

// The program on the database at that moment, its first job's history opened from the menu
// ("Auftragsverlauf") until the history's window is drawn.
GridFill openHistoryWindow(const QString& path, const QDateTime& now);
