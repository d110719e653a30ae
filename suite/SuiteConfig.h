#pragma once

#include <QMap>
#include <QString>

// What the suite tells its components about the installation: directories by number, the
// suite's ini file, the kind of installation, the trace and the database; and the document
// data the host hands to a component when it opens a document.
//
// It is read from an ini file in the user's configuration directory:
//
//   [Pfade]
//   41=/opt/suite/bin/
//   83=/srv/suite/daten
//   [Suite]
//   Installationsart=1
//   IniDatei=/etc/suite/suite.ini
//   Datenbank=/srv/suite/suite.sqlite
//   Wartezeit=5000
//   Trace=1
//   TraceDatei=/tmp/suite-trace.log
//   [Dokument]
//   ManId=1
//   MitId=1
//   ManNr=1
//   AktenTyp=4
//   DocName=Aufträge
//
// Every value left out keeps its default, so the program runs without any such file.
struct SuiteConfig {
    // Directories by the number GetPfad is asked with: 41 program directory, 83 data root,
    // 6 suite path.
    QMap<long, QString> paths;
    // What GetIniDatei answers.
    QString iniFilePath;
    // What GetInstallationsArt answers; 1 is the local kind.
    long installationKind = 0;
    bool traceOn = false;
    QString traceFilePath;
    QString databasePath;
    // How long a statement waits for another writer's lock on the database before it fails
    // ("Wartezeit" in milliseconds).
    int busyTimeoutMs = 5000;

    // The document data of the host.

    long manId = 0;
    long mitId = 0;
    long manNr = 0;
    long aktenTyp = 0;
    QString docName;

    // Defaults that work out of the box: the program directory is the application's, all
    // data lies below the user's data directory, the ini file in the user's configuration
    // directory.
    static SuiteConfig defaults();
    // The defaults, overridden by what the file holds; a missing file gives the defaults.
    static SuiteConfig load(const QString& file);
    // <user configuration directory>/autojobverw/autojobverw.ini
    static QString defaultFile();
};
