#include "suite/TraceLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "common/Services.h"

long SuiteTraceLog::IsTraceOn() {
    return config_->traceOn ? 1 : 0;
}

void SuiteTraceLog::Write(long level, const QString& text) {
    if (!config_->traceOn || config_->traceFilePath.isEmpty()) {
        return;
    }
    const QFileInfo info(config_->traceFilePath);
    QDir().mkpath(info.absolutePath());
    QFile file(info.absoluteFilePath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        return;
    }
    const QString line = clockNow().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) +
                         QLatin1Char('\t') + QString::number(level) + QLatin1Char('\t') + text +
                         QLatin1Char('\n');
    file.write(line.toUtf8());
}
