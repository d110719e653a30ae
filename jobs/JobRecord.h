#pragma once

#include <QString>
#include <cstdint>

#include "app/RowConflict.h"

// One job as the editor and the paste hand it to the database and get it back: the values
// of a row of tAutoJobJob, in the order in which they travel.
struct JobRecord {
    long lJobId = 0;               // idAutoJob; -1 for a job without a row yet
    std::uint8_t bytDatenArt = 0;  // job type
    QString sName;
    QString sBeschreibung;
    std::uint8_t bytAktiviert = 0;  // 1 active, 0 not
    QString sVerzeichnis1;          // MTAPath
    QString sVerzeichnis2;          // BackupPath, or the document type list of type 28
    QString sVerzeichnis3;          // ErrorMTA
    long lArchivMitarbeiter = 0;    // MTAPath of types 20 and 21
    QString sArchivKennwort;        // BackupPath of types 20 and 21, in clear
    long lMandant = 0;              // Ps_Id_Mandant: client or office id
    std::uint8_t bytMandKanz = 0;   // client kind
    QString sLetzteAenderung;       // caption of the last change, given back only
    QString sErstellt;              // creation date as text, given back only
    QString sZusatzinfo;
    bool bSingleLog = false;
    bool bFremdFormat = false;
    QString sFremdDateifilter;
    QString sFremdMapping;
    // Zeilenversion of the row as read or written; kNichtGelesen for a row not read.
    long lZeilenversion = RowConflict::kNichtGelesen;
};

// Whether a job type keeps an archive login (staff id and password) in its directory columns.
bool jobHatArchivAnmeldung(long lDatenArt);
