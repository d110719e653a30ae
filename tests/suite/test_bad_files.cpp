// Files the agent or a user left behind in any state: empty, cut off, huge, a pipe, a link
// to itself. Each is read to an end or refused with a message; none hangs.
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <QFile>
#include <QTemporaryDir>

#include "common/ErrObject.h"
#include "history/BookingsLogReader.h"
#include "suite/OptionFileReaderText.h"

namespace {

class BadFilesTest : public ::testing::Test {
  protected:
    QString write(const char* name, const QByteArray& content) {
        const QString path = dir.filePath(QString::fromUtf8(name));
        QFile f(path);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(content);
        return path;
    }
    // The error the reader raises for the script, or number 0 when it reads.
    ErrObject optionError(const QString& path) {
        try {
            TextOptionFileReader().Entries(path);
        } catch (const RaisedError& e) {
            return e.err();
        }
        return {};
    }

    QTemporaryDir dir;
};

TEST_F(BadFilesTest, EmptyAndCutOffScriptsGiveWhatIsWhole) {
    EXPECT_TRUE(TextOptionFileReader().Entries(write("leer.opt", "")).isEmpty());
    // Cut in the middle of an umlaut and without the last line's end.
    QByteArray cut = QByteArray("KUNDEN=/daten/kunden.txt\nKONTEN=/daten/Gr\xc3\xb6\xc3");
    const auto entries = TextOptionFileReader().Entries(write("cut.opt", cut));
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[0].TextFileName, QStringLiteral("/daten/kunden.txt"));
    EXPECT_TRUE(entries[1].TextFileName.startsWith(QStringLiteral("/daten/Grö")));
}

TEST_F(BadFilesTest, HugeScriptIsRefusedWithoutReadingIt) {
    const QString path = dir.filePath(QStringLiteral("riesig.opt"));
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    ASSERT_TRUE(f.resize(512LL * 1024 * 1024));  // sparse: no disk space used
    f.close();
    const ErrObject e = optionError(path);
    EXPECT_EQ(e.Number, 7);
    EXPECT_EQ(e.Description,
              QStringLiteral("Das Importskript %1 ist mit 536870912 Bytes zu groß; ein "
                             "Importskript hat höchstens 1048576 Bytes.")
                  .arg(path));
}

TEST_F(BadFilesTest, LinksToThemselvesPipesAndDevicesAreNoScript) {
    const QString loop = dir.filePath(QStringLiteral("schleife.opt"));
    ASSERT_TRUE(QFile::link(loop, loop));
    const QString zero = dir.filePath(QStringLiteral("null.opt"));
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), zero));
    const QString pipe = dir.filePath(QStringLiteral("rohr.opt"));
    ASSERT_EQ(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);

    for (const QString& path : {loop, zero, pipe}) {
        const ErrObject e = optionError(path);
        EXPECT_EQ(e.Number, 53) << path.toStdString();
        EXPECT_EQ(e.Description, QStringLiteral("Datei nicht gefunden: ") + path);
    }
}

TEST_F(BadFilesTest, HugeBookingsLogOfZerosEndsWithoutBookings) {
    const QString path = dir.filePath(QStringLiteral("buchungen.Log"));
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    ASSERT_TRUE(f.resize(4LL * 1024 * 1024));
    f.close();
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_FALSE(bookingsLogHasBookings(f));
    EXPECT_TRUE(f.atEnd());
}

}  // namespace
