#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "common/ErrObject.h"
#include "suite/OptionFileReaderText.h"

namespace {

QStringList flat(const QList<OptionFileEntry>& entries) {
    QStringList out;
    for (const auto& e : entries) {
        out << e.TableName + QStringLiteral("=") + e.TextFileName;
    }
    return out;
}

class OptionFileReaderTest : public ::testing::Test {
  protected:
    QTemporaryDir dir;
    TextOptionFileReader reader;

    QString write(const char* name, const QByteArray& content) {
        const QString path = dir.filePath(QString::fromUtf8(name));
        QFile f(path);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(content);
        return path;
    }
};

TEST_F(OptionFileReaderTest, EntriesKeepTheScriptsOrderAndSkipBlanksAndComments) {
    const QString path = write("import.opt",
                               "# Buchungsimport\n"
                               "\n"
                               "  BUCHUNGEN = /daten/import/buchungen.txt  \r\n"
                               "; alte Zeile: KONTEN=/alt.txt\n"
                               "KONTEN=/daten/import/konten_*.csv\n"
                               "   \n"
                               "ADRESSEN=/daten/Übernahme/adressen.txt");
    EXPECT_EQ(flat(reader.Entries(path)),
              (QStringList{QStringLiteral("BUCHUNGEN=/daten/import/buchungen.txt"),
                           QStringLiteral("KONTEN=/daten/import/konten_*.csv"),
                           QStringLiteral("ADRESSEN=/daten/Übernahme/adressen.txt")}));
}

TEST_F(OptionFileReaderTest, ATableWithoutFileIsAnEntryWithAnEmptyName) {
    const auto entries = reader.Entries(write("leer.opt", "KONTEN=\nA=b=c.txt\n"));
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[0].TableName, QStringLiteral("KONTEN"));
    EXPECT_TRUE(entries[0].TextFileName.isEmpty());
    // Only the first "=" separates.
    EXPECT_EQ(entries[1].TextFileName, QStringLiteral("b=c.txt"));
}

TEST_F(OptionFileReaderTest, AMissingScriptRaisesFileNotFound) {
    const QString path = dir.filePath(QStringLiteral("fehlt.opt"));
    try {
        reader.Entries(path);
        FAIL() << "no error raised";
    } catch (const RaisedError& e) {
        EXPECT_EQ(e.err().Number, 53);
        EXPECT_EQ(e.err().Description, QStringLiteral("Datei nicht gefunden: ") + path);
    }
    // A directory is no script either.
    EXPECT_THROW(reader.Entries(dir.path()), RaisedError);
}

TEST_F(OptionFileReaderTest, ALineWithoutTableNamesTheLine) {
    const QString path = write("kaputt.opt", "A=a.txt\nnur Text\n");
    try {
        reader.Entries(path);
        FAIL() << "no error raised";
    } catch (const RaisedError& e) {
        EXPECT_EQ(e.err().Description, QStringLiteral("Fehlerhafte Zeile 2 im Importskript ") +
                                           path + QStringLiteral(": nur Text"));
    }
    EXPECT_THROW(TextOptionFileReader::parse("=x.txt", QStringLiteral("s")), RaisedError);
}

}  // namespace
