#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "suite/CoreTools.h"
#include "suite/IniFile.h"
#include "suite/SuiteConfig.h"

namespace {

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

TEST(IniFile, FindsSectionsAndKeysWithoutRegardToCase) {
    const IniFile ini = IniFile::parse(
        "[Pfade]\r\n"
        "Logfile = C:\\Suite\\Log \r\n"
        "[SUITE]\n"
        "Installationsart=1\n");
    EXPECT_EQ(ini.value("pfade", "LOGFILE"), "C:\\Suite\\Log");
    EXPECT_EQ(ini.value("Suite", "installationsart"), "1");
    EXPECT_TRUE(ini.contains("PFADE", "logfile"));
}

TEST(IniFile, ValueIsEverythingAfterTheFirstEqualsSign) {
    const IniFile ini = IniFile::parse("[Db]\nVerbindung=Server=x;Database=y\nLeer=\n");
    EXPECT_EQ(ini.value("Db", "Verbindung"), "Server=x;Database=y");
    EXPECT_EQ(ini.value("Db", "Leer"), "");
    EXPECT_TRUE(ini.contains("Db", "Leer"));
}

TEST(IniFile, IgnoresCommentsAndLinesWithoutEqualsSign) {
    const IniFile ini = IniFile::parse(
        "; Kopf\n"
        "[Pfade]\n"
        "# Logfile=/falsch\n"
        "  ; Logfile=/auch falsch\n"
        "nur Text\n"
        "Logfile=/richtig\n");
    EXPECT_EQ(ini.value("Pfade", "Logfile"), "/richtig");
    EXPECT_EQ(ini.keys("Pfade"), QStringList{"Logfile"});
}

TEST(IniFile, FirstOfTwoEqualKeysCountsAndRepeatedSectionsJoin) {
    const IniFile ini = IniFile::parse("[A]\nx=1\nX=2\n[B]\ny=3\n[a]\nz=4\n");
    EXPECT_EQ(ini.value("A", "x"), "1");
    EXPECT_EQ(ini.value("A", "z"), "4");
    EXPECT_EQ(ini.keys("a"), (QStringList{"x", "z"}));
}

TEST(IniFile, MissingPartsReadEmpty) {
    const IniFile ini = IniFile::parse("[A]\nx=1\n");
    EXPECT_EQ(ini.value("B", "x"), "");
    EXPECT_EQ(ini.value("A", "y"), "");
    EXPECT_FALSE(ini.contains("A", "y"));
    EXPECT_TRUE(ini.keys("B").isEmpty());
    EXPECT_EQ(IniFile::read("/nicht/vorhanden/suite.ini").value("A", "x"), "");
    EXPECT_EQ(IniFile::read(QString()).value("A", "x"), "");
}

TEST(IniFile, ReadsUmlautsInUtf8AndInWindows1252) {
    const IniFile utf8 = IniFile::parse("\xEF\xBB\xBF[Prüfung]\nOrt=Köln Süd\n");
    EXPECT_EQ(utf8.value("PRÜFUNG", "Ort"), QString::fromUtf8("Köln Süd"));

    const IniFile ansi = IniFile::parse(
        "[Pr\xFC"
        "fung]\nOrt=K\xF6ln S\xFC"
        "d \x80\n");
    EXPECT_EQ(ansi.value("Prüfung", "Ort"), QString::fromUtf8("Köln Süd €"));
}

class SuiteConfigTest : public ::testing::Test {
  protected:
    QTemporaryDir dir;
    QString file() const { return dir.filePath("autojobverw.ini"); }
};

TEST_F(SuiteConfigTest, DefaultsWorkWithoutAnyFile) {
    const SuiteConfig c = SuiteConfig::load(file());
    const QString sep = QDir::separator();
    EXPECT_TRUE(c.paths.value(41).endsWith(sep));
    EXPECT_FALSE(c.paths.value(83).isEmpty());
    EXPECT_TRUE(c.paths.value(6).endsWith(sep));
    EXPECT_TRUE(QDir::fromNativeSeparators(c.paths.value(83)).contains("/autojobverw/"));
    EXPECT_TRUE(QDir::fromNativeSeparators(c.iniFilePath).endsWith("/autojobverw/suite.ini"));
    EXPECT_TRUE(QDir::fromNativeSeparators(c.databasePath).endsWith("/autojobverw/demo.sqlite"));
    EXPECT_TRUE(QDir::fromNativeSeparators(SuiteConfig::defaultFile())
                    .endsWith("/autojobverw/autojobverw.ini"));
    EXPECT_EQ(c.installationKind, 1);
    EXPECT_FALSE(c.traceOn);
    EXPECT_EQ(c.manId, 0);
    EXPECT_EQ(c.mitId, 1);
    EXPECT_EQ(c.aktenTyp, 4);
    EXPECT_EQ(c.docName, QString::fromUtf8("Aufträge"));
}

TEST_F(SuiteConfigTest, FileOverridesOnlyWhatItHolds) {
    writeFile(file(),
              "[Pfade]\n41=/opt/suite/bin/\n83=/srv/daten\nLogfile=/kein/code\n"
              "[suite]\ninstallationsart=1\nIniDatei=/etc/suite/Suite.ini\nTrace=ja\n"
              "TraceDatei=/tmp/spur.log\n"
              "[Dokument]\nManId=3\nMitId=1\nManNr=4711\nAktenTyp=4\nDocName=Aufträge\n");
    const SuiteConfig d = SuiteConfig::defaults();
    const SuiteConfig c = SuiteConfig::load(file());
    EXPECT_EQ(c.paths.value(41), "/opt/suite/bin/");
    EXPECT_EQ(c.paths.value(83), "/srv/daten");
    EXPECT_EQ(c.paths.value(6), d.paths.value(6));
    EXPECT_EQ(c.paths.size(), 3);
    EXPECT_EQ(c.installationKind, 1);
    EXPECT_EQ(c.iniFilePath, "/etc/suite/Suite.ini");
    EXPECT_TRUE(c.traceOn);
    EXPECT_EQ(c.traceFilePath, "/tmp/spur.log");
    EXPECT_EQ(c.databasePath, d.databasePath);
    EXPECT_EQ(c.manId, 3);
    EXPECT_EQ(c.mitId, 1);
    EXPECT_EQ(c.manNr, 4711);
    EXPECT_EQ(c.aktenTyp, 4);
    EXPECT_EQ(c.docName, QString::fromUtf8("Aufträge"));
}

TEST_F(SuiteConfigTest, ADatabaseOnAServerIsNamedByItsAddressAsWritten) {
    writeFile(file(),
              "[Suite]\nDatenbank=postgresql://kanzlei@server:5433/auftraege"
              "?sslmode=require&connect_timeout=5\n");
    EXPECT_EQ(SuiteConfig::load(file()).databasePath,
              "postgresql://kanzlei@server:5433/auftraege?sslmode=require&connect_timeout=5");
}

TEST_F(SuiteConfigTest, NumbersThatAreNoNumbersKeepTheDefaultAndTraceZeroIsOff) {
    writeFile(file(), "[Suite]\nInstallationsart=lokal\nTrace=0\n[Dokument]\nManId=\n");
    const SuiteConfig c = SuiteConfig::load(file());
    EXPECT_EQ(c.installationKind, 1);
    EXPECT_FALSE(c.traceOn);
    EXPECT_EQ(c.manId, 0);
}

TEST_F(SuiteConfigTest, CoreToolsAnswerFromTheSharedConfiguration) {
    auto config = std::make_shared<SuiteConfig>(SuiteConfig::defaults());
    config->paths[41] = "/opt/suite/bin/";
    config->iniFilePath = dir.filePath("suite.ini");
    writeFile(config->iniFilePath, "[Pfade]\nLogfile=D:\\Agent\\Log\n");
    SuiteCoreTools tools(config);

    EXPECT_EQ(tools.GetPfad(41), "/opt/suite/bin/");
    EXPECT_EQ(tools.GetPfad(12345), "");
    EXPECT_EQ(tools.GetIniDatei(), dir.filePath("suite.ini"));
    EXPECT_EQ(tools.IniLesen(tools.GetIniDatei(), "PFADE", "logfile"), "D:\\Agent\\Log");
    EXPECT_EQ(tools.IniLesen(tools.GetIniDatei(), "Pfade", "Fehlt"), "");

    // A change made after the object was created is seen by it.
    config->paths[41] = "/neu/bin/";
    EXPECT_EQ(tools.GetPfad(41), "/neu/bin/");
}

}  // namespace
