#include "suite/ProcessShell.h"

#include <QDir>
#include <QProcess>

bool ProcessShell::Start(const QString& program, const QStringList& arguments, int) {
    // The window style (minimised with focus) is the started program's own affair here: a
    // detached process opens its windows as the desktop places them.
    return QProcess::startDetached(program, arguments);
}

bool ProcessShell::Open(const QString& path) {
    return QProcess::startDetached(openProgram(), {QDir::toNativeSeparators(path)});
}

QString ProcessShell::openProgram() {
#ifdef Q_OS_WIN
    return QStringLiteral("explorer");
#else
    return QStringLiteral("xdg-open");
#endif
}
