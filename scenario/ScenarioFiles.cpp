#include "scenario/ScenarioFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "scenario/ScenarioError.h"

namespace {

void makeParent(const QString& path) {
    const QString parent = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(parent)) {
        scenarioFail(QStringLiteral("the directory %1 cannot be created").arg(parent));
    }
}

void writeAll(const QString& path, const QByteArray& bytes, const QDateTime& modified) {
    makeParent(path);
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size()) {
        scenarioFail(
            QStringLiteral("the file %1 cannot be written: %2").arg(path, f.errorString()));
    }
    if (!f.flush() || !f.setFileTime(modified, QFileDevice::FileModificationTime)) {
        scenarioFail(QStringLiteral("the time of the file %1 cannot be set").arg(path));
    }
}

void put16(QByteArray& out, int value) {
    const auto v = static_cast<quint16>(value);
    out.append(static_cast<char>(v & 0xff));
    out.append(static_cast<char>(v >> 8));
}

void putZeros(QByteArray& out, int count) {
    out.append(QByteArray(count, '\0'));
}

void putText(QByteArray& out, const QByteArray& text) {
    put16(out, static_cast<int>(text.size()));
    out.append(text);
}

}  // namespace

void makeDirectory(const QString& dir) {
    if (!QDir().mkpath(dir)) {
        scenarioFail(QStringLiteral("the directory %1 cannot be created").arg(dir));
    }
}

void makeFile(const QString& path, qint64 size, const QDateTime& modified) {
    writeAll(path, QByteArray(size, 'x'), modified);
}

QByteArray bookingsLogBytes(const QList<int>& markers) {
    QByteArray out;
    putZeros(out, 24);
    for (int i = 1; i <= 5; ++i) {
        putText(out, "H" + QByteArray::number(i));
    }
    putZeros(out, 14);
    putText(out, "H6");
    for (int marker : markers) {
        put16(out, 0);
        put16(out, 0);
        put16(out, marker);
        putZeros(out, 13 + 9 + 8);
        putText(out, "E1");
        putText(out, "E2");
        putZeros(out, 28);
        for (int i = 3; i <= 6; ++i) {
            putText(out, "E" + QByteArray::number(i));
        }
    }
    return out;
}

void writeBookingsLog(const QString& path, const QList<int>& markers, const QDateTime& modified) {
    writeAll(path, bookingsLogBytes(markers), modified);
}

void writeOptionFile(const QString& path, const QList<QPair<QString, QString>>& entries,
                     const QDateTime& modified) {
    QByteArray out;
    for (const auto& [table, textFile] : entries) {
        out += table.toUtf8() + '=' + textFile.toUtf8() + '\n';
    }
    writeAll(path, out, modified);
}
