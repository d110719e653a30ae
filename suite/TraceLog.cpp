#include "suite/TraceLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "common/DatabaseFiles.h"
#include "common/PlatformUi.h"
#include "common/Services.h"

namespace {

void tellOnce(const QString& path, const QString& cause) {
    static QStringList told;
    if (told.contains(path) || !services().ui) {
        return;
    }
    told << path;
    services().ui->MsgBox(
        QStringLiteral("Die Ablaufverfolgung kann nicht in die Datei %1 geschrieben werden (%2). "
                       "Das Programm arbeitet ohne sie weiter.")
            .arg(QDir::toNativeSeparators(path), cause),
        48, QStringLiteral("Ablaufverfolgung"));
}

}  // namespace

long SuiteTraceLog::IsTraceOn() {
    return config_->traceOn ? 1 : 0;
}

void SuiteTraceLog::Write(long level, const QString& text) {
    if (!config_->traceOn || config_->traceFilePath.isEmpty()) {
        return;
    }
    const QFileInfo info(config_->traceFilePath);
    if (DatabaseFiles::isDatabaseFile(info.absoluteFilePath())) {
        tellOnce(info.absoluteFilePath(), DatabaseFiles::refusal(info.absoluteFilePath()));
        return;
    }
    QDir().mkpath(info.absolutePath());
    QFile file(info.absoluteFilePath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        tellOnce(file.fileName(), file.errorString());
        return;
    }
    const qint64 before = file.size();
    const QString line = clockNow().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) +
                         QLatin1Char('\t') + QString::number(level) + QLatin1Char('\t') + text +
                         QLatin1Char('\n');
    const QByteArray bytes = line.toUtf8();
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        const QString cause = file.errorString();
        file.resize(before);  // no half line stays behind
        tellOnce(file.fileName(), cause);
    }
}
