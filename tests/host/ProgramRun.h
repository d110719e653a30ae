#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

// A program run as a user runs it, offscreen: its exit code and what it wrote.
struct ProgramRun {
    int exitCode = -1;
    QString out;
    QString err;
};

// Runs program with the arguments; environment entries in env are set on top of this one's.
inline ProgramRun runProgram(const QString& program, const QStringList& arguments,
                             const QProcessEnvironment& env = {}) {
    QProcess p;
    QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
    all.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    all.insert(env);
    p.setProcessEnvironment(all);
    p.start(program, arguments);
    if (!p.waitForFinished(30000)) {
        p.kill();
        p.waitForFinished();
    }
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
            QString::fromUtf8(p.readAllStandardOutput()),
            QString::fromUtf8(p.readAllStandardError())};
}
