#include "suite/SuiteConfig.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include "suite/IniFile.h"

namespace {

const QString kAppFolder = QStringLiteral("autojobverw");

QString withSeparator(const QString& dir) {
    const QString native = QDir::toNativeSeparators(dir);
    return native.endsWith(QDir::separator()) ? native : native + QDir::separator();
}

QString underFolder(QStandardPaths::StandardLocation location, const QString& name) {
    const QString base = QStandardPaths::writableLocation(location);
    return QDir::toNativeSeparators(base + QLatin1Char('/') + kAppFolder +
                                    (name.isEmpty() ? QString() : QLatin1Char('/') + name));
}

bool isOn(const QString& value) {
    const QString v = value.trimmed().toLower();
    if (v == QLatin1String("ja") || v == QLatin1String("true") || v == QLatin1String("on") ||
        v == QLatin1String("yes") || v == QLatin1String("wahr")) {
        return true;
    }
    bool ok = false;
    return v.toLong(&ok) != 0 && ok;
}

// Overrides a number only where the file holds one.
void readNumber(const IniFile& ini, const QString& section, const QString& key, long& target) {
    bool ok = false;
    const long value = ini.value(section, key).toLong(&ok);
    if (ok) {
        target = value;
    }
}

void readText(const IniFile& ini, const QString& section, const QString& key, QString& target) {
    if (ini.contains(section, key)) {
        target = ini.value(section, key);
    }
}

}  // namespace

SuiteConfig SuiteConfig::defaults() {
    SuiteConfig c;
    const QString programDir =
        QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QDir::currentPath();
    c.paths.insert(41, withSeparator(programDir));
    c.paths.insert(83, underFolder(QStandardPaths::GenericDataLocation, QStringLiteral("data")));
    c.paths.insert(6, withSeparator(underFolder(QStandardPaths::GenericDataLocation,
                                                QStringLiteral("suite"))));
    c.iniFilePath = underFolder(QStandardPaths::GenericConfigLocation, QStringLiteral("suite.ini"));
    c.traceFilePath = underFolder(QStandardPaths::GenericDataLocation, QStringLiteral("trace.log"));
    c.databasePath =
        underFolder(QStandardPaths::GenericDataLocation, QStringLiteral("demo.sqlite"));
    // A local installation of a firm with clients and offices, worked on by staff member 1:
    // what the demo database is made for.
    c.installationKind = 1;
    c.mitId = 1;
    c.aktenTyp = 4;
    c.docName = QStringLiteral("Aufträge");
    return c;
}

QString SuiteConfig::defaultFile() {
    return underFolder(QStandardPaths::GenericConfigLocation, QStringLiteral("autojobverw.ini"));
}

SuiteConfig SuiteConfig::load(const QString& file) {
    SuiteConfig c = defaults();
    const IniFile ini = IniFile::read(file);

    const QString pfade = QStringLiteral("Pfade");
    for (const QString& key : ini.keys(pfade)) {
        bool ok = false;
        const long code = key.toLong(&ok);
        if (ok) {
            c.paths.insert(code, ini.value(pfade, key));
        }
    }

    const QString suite = QStringLiteral("Suite");
    readNumber(ini, suite, QStringLiteral("Installationsart"), c.installationKind);
    readText(ini, suite, QStringLiteral("IniDatei"), c.iniFilePath);
    readText(ini, suite, QStringLiteral("Datenbank"), c.databasePath);
    readText(ini, suite, QStringLiteral("TraceDatei"), c.traceFilePath);
    long wartezeit = c.busyTimeoutMs;
    readNumber(ini, suite, QStringLiteral("Wartezeit"), wartezeit);
    if (wartezeit >= 0 && wartezeit <= 600000) {
        c.busyTimeoutMs = static_cast<int>(wartezeit);
    }
    if (ini.contains(suite, QStringLiteral("Trace"))) {
        c.traceOn = isOn(ini.value(suite, QStringLiteral("Trace")));
    }

    const QString dokument = QStringLiteral("Dokument");
    readNumber(ini, dokument, QStringLiteral("ManId"), c.manId);
    readNumber(ini, dokument, QStringLiteral("MitId"), c.mitId);
    readNumber(ini, dokument, QStringLiteral("ManNr"), c.manNr);
    readNumber(ini, dokument, QStringLiteral("AktenTyp"), c.aktenTyp);
    readText(ini, dokument, QStringLiteral("DocName"), c.docName);
    return c;
}
