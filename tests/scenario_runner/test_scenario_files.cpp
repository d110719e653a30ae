#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "scenario/ScenarioFiles.h"

namespace {

quint16 read16(const QByteArray& b, qsizetype at) {
    return static_cast<quint16>(static_cast<quint8>(b.at(at)) |
                                (static_cast<quint8>(b.at(at + 1)) << 8));
}

// Skips a text: its 16-bit length, then that many bytes.
qsizetype skipText(const QByteArray& b, qsizetype at) {
    return at + 2 + read16(b, at);
}

// Walks the records as the system's reader does and gives the markers found.
QList<int> markersOf(const QByteArray& b) {
    qsizetype at = 24;
    for (int i = 0; i < 5; ++i) {
        at = skipText(b, at);
    }
    at = skipText(b, at + 14);
    QList<int> markers;
    while (at < b.size()) {
        markers << read16(b, at + 4);
        at += 6 + 13 + 9 + 8;
        at = skipText(b, skipText(b, at));
        at += 28;
        for (int i = 0; i < 4; ++i) {
            at = skipText(b, at);
        }
    }
    EXPECT_EQ(at, b.size());
    return markers;
}

TEST(ScenarioFiles, TheBookingsLogHoldsOneEntryRecordPerMarkerInTheirOrder) {
    EXPECT_EQ(markersOf(bookingsLogBytes({0, 0, 1, 256})), QList<int>({0, 0, 1, 256}));
    EXPECT_EQ(markersOf(bookingsLogBytes({})), QList<int>());
}

TEST(ScenarioFiles, FilesGetTheirSizeParentsAndTheScenariosClock) {
    QTemporaryDir dir;
    const QDateTime moment(QDate(2026, 11, 22), QTime(10, 0));
    const QString path = dir.filePath("a/b/KUND12.XLS");
    makeFile(path, 3, moment);
    const QFileInfo info(path);
    EXPECT_EQ(info.size(), 3);
    EXPECT_EQ(info.lastModified(), moment);

    const QString log = dir.filePath("logs/x.Log");
    writeBookingsLog(log, {1}, moment);
    EXPECT_EQ(QFileInfo(log).lastModified(), moment);
}

TEST(ScenarioFiles, AnOptionFileListsItsEntriesInOrder) {
    QTemporaryDir dir;
    const QString path = dir.filePath("s/import.opt");
    writeOptionFile(path, {{"Kunden", "/d/kunden.txt"}, {"Lieferanten", "/d/lief.txt"}},
                    QDateTime(QDate(2026, 11, 22), QTime(10, 0)));
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll(), QByteArray("Kunden=/d/kunden.txt\nLieferanten=/d/lief.txt\n"));
}

}  // namespace
