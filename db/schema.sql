-- Database of the configuration front end for automatic jobs (SQLite dialect).
--
-- Conventions
--   * Identity keys are INTEGER PRIMARY KEY AUTOINCREMENT.
--   * Every date/time column is declared DATETIME; the record set recognises
--     date columns by that declared type. Values are ISO text
--     'yyyy-MM-dd HH:mm:ss'; a date without time of day carries 00:00:00.
--   * Flags are BIT holding 0/1, codes and ids INTEGER, texts VARCHAR/TEXT.
--   * Column names are fixed by the agent service and the starter program,
--     odd spellings included (FreqencyType, FrequencySubDayinterval).
--   * No foreign key constraints: deleting a job leaves its schedules, runs
--     and log entries to the agent service, and deleting a schedule leaves its
--     runs. The links are documented at each column instead.
--
-- The file creates objects only; it inserts no rows.

------------------------------------------------------------------------------
-- Tables of the suite itself (read by the staff, client and text objects)
------------------------------------------------------------------------------

-- Numbered texts of the suite (CoreTexte.GetText). Used here:
--   1001 title head, 1024/1025/1228 pieces of the log path,
--   1236 display name of the merchandise system (label of job type 28,
--   result code 4 of the run history).
CREATE TABLE tSuiteText (
    TextId  INTEGER PRIMARY KEY,
    Text    TEXT NOT NULL
);

-- Staff members. Name is the display name.
CREATE TABLE tMitarbeiter (
    MitId   INTEGER PRIMARY KEY AUTOINCREMENT,
    Name    TEXT NOT NULL
);

-- Clients (Kanzlei = 0) and offices (Kanzlei = 1). ManId is the id that jobs
-- store in Ps_Id_Mandant; ManNr is the number shown to the user, an office's
-- number being shown with a leading "K".
CREATE TABLE tMandant (
    ManId   INTEGER PRIMARY KEY AUTOINCREMENT,
    ManNr   INTEGER NOT NULL,
    Kanzlei BIT NOT NULL DEFAULT 0,
    Name    TEXT
);
CREATE UNIQUE INDEX ixMandant_KanzleiNr ON tMandant (Kanzlei, ManNr);

-- Fiscal years of the suite. The bookings log viewer gets the id of the
-- first row.
CREATE TABLE person_wirtschaftsjahr (
    WJ_Id       INTEGER PRIMARY KEY AUTOINCREMENT,
    Ps_Id       INTEGER NOT NULL DEFAULT 0,   -- client or office (tMandant.ManId)
    WJ_Jahr     INTEGER,
    WJ_Beginn   DATETIME,
    WJ_Ende     DATETIME
);

-- Document types of the merchandise system; a direct bookings import
-- (job type 28) stores a comma list of Nummer values, "" or "0" meaning all.
CREATE TABLE XB_Belegart_iKesto (
    Nummer      INTEGER PRIMARY KEY NOT NULL,
    Bezeichnung VARCHAR(100) NOT NULL DEFAULT ''
);

------------------------------------------------------------------------------
-- Jobs
------------------------------------------------------------------------------

-- One row per job.
--   DatenArt  job type: 4 bookings, 5 fixed assets, 17 customers,
--             18 suppliers, 20 scanned documents, 21 indexing of vouchers,
--             28 direct bookings of the merchandise system, 30 dealer data,
--             99 text file import.
--   MandKanz  client kind: 1 client, 2 office, 3 all clients, 4 all offices,
--             5 all clients and offices; 0 in rows never given a kind.
--   Ps_Id_Mandant  tMandant.ManId for kinds 1 and 2, else 0.
--   MTAPath / BackupPath / ErrorMTA  three directories whose meaning depends
--             on the job type; for types 20 and 21 MTAPath holds the staff id
--             of the archive login as text and BackupPath the archive password
--             in its stored form (hex of the ANSI codes, reversed); for type 28
--             BackupPath holds the list of document types.
--   Zusatzinfo  staff id for 4/17/18/28, dealer data key 1..3 for 30,
--             "staff id|script|text files" for 99, empty otherwise.
CREATE TABLE tAutoJobJob (
    idAutoJob           INTEGER PRIMARY KEY AUTOINCREMENT,
    Erstellt            DATETIME,
    Name                VARCHAR(100) DEFAULT '',
    Beschreibung        TEXT,
    Aktiviert           BIT DEFAULT 1,
    DatenArt            INTEGER DEFAULT 0,
    MTAPath             VARCHAR(255),
    BackupPath          TEXT,
    ErrorMTA            VARCHAR(255),
    Ps_Id_Mandant       INTEGER DEFAULT 0,
    MandKanz            INTEGER DEFAULT 0,
    Ps_Id_Mitarbeiter   INTEGER DEFAULT 0,
    Zusatzinfo          TEXT,
    SingleLog           BIT DEFAULT 0,
    FremdFormat         BIT DEFAULT 0,
    FremdDateifilter    VARCHAR(100),
    FremdMapping        VARCHAR(255),
    LetzteAenderung     DATETIME,
    Zeilenversion       INTEGER NOT NULL DEFAULT 0
);
CREATE INDEX ixAutoJobJob_Mandant ON tAutoJobJob (Ps_Id_Mandant);
-- Zeilenversion counts the writes of a row, whoever makes them: a window that read version n
-- saves only while the row still has n (two saves may fall into one second of
-- LetzteAenderung). A writer that sets the column itself is left alone.
CREATE TRIGGER trAutoJobJob_Zeilenversion AFTER UPDATE ON tAutoJobJob
FOR EACH ROW WHEN NEW.Zeilenversion = OLD.Zeilenversion
BEGIN
    UPDATE tAutoJobJob SET Zeilenversion = OLD.Zeilenversion + 1
    WHERE idAutoJob = NEW.idAutoJob;
END;

------------------------------------------------------------------------------
-- Schedules
------------------------------------------------------------------------------

-- One row per schedule of a job (idAutoJob -> tAutoJobJob).
--   FreqencyType               1 once, 4 daily, 8 weekly, 16 monthly on a day,
--                              32 monthly relative
--   FrequencyInterval          type 4: every n days; 8: weekday bit mask
--                              (1 Sunday, 2 Monday, 4 Tuesday, 8 Wednesday,
--                              16 Thursday, 32 Friday, 64 Saturday);
--                              16: day of month; 32: weekday code 1..10
--                              (1 Sunday .. 7 Saturday, 8 day, 9 weekday,
--                              10 weekend day); 1: 0
--   FrequencyRecurrenceFactor  every n weeks (8) or months (16, 32), else 0
--   FrequencyRelativeInterval  type 32: 1 first, 2 second, 4 third, 8 fourth,
--                              16 last; else 0
--   FrequencySubDay            1 once a day, 4 every n minutes, 8 every n hours
--   FrequencySubDayinterval    the n of FrequencySubDay 4 and 8
--   ActiveStartTimeOfDay / ActiveEndTimeOfDay
--                              time of day as decimal HHMMSS (93000 = 09:30:00)
--   ActiveStartDate / ActiveEndDate
--                              calendar dates at 00:00:00; an end date of
--                              9999-12-31 means no end; a single run (type 1)
--                              has end date = start date
--   Ps_Id                      staff id of the last writer
--   Name                       compared without regard to case, as the server
--                              does: copying a schedule matches it by name
CREATE TABLE tAutoJobSchedule (
    idAutoJobSchedule           INTEGER PRIMARY KEY AUTOINCREMENT,
    idAutoJob                   INTEGER NOT NULL DEFAULT 0,
    Name                        VARCHAR(100) DEFAULT '' COLLATE NOCASE,
    Aktiviert                   BIT DEFAULT 1,
    FreqencyType                INTEGER DEFAULT 0,
    FrequencyRecurrenceFactor   INTEGER DEFAULT 0,
    FrequencyInterval           INTEGER DEFAULT 0,
    FrequencyRelativeInterval   INTEGER DEFAULT 0,
    FrequencySubDayinterval     INTEGER DEFAULT 0,
    FrequencySubDay             INTEGER DEFAULT 0,
    ActiveStartTimeOfDay        INTEGER DEFAULT 0,
    ActiveEndTimeOfDay          INTEGER DEFAULT 235959,
    ActiveStartDate             DATETIME,
    ActiveEndDate               DATETIME,
    LetzteAenderung             DATETIME,
    Ps_Id                       INTEGER DEFAULT 0,
    Zeilenversion               INTEGER NOT NULL DEFAULT 0
);
-- Schedules are listed, started and copied by job. The name stays out of the
-- index: the program compares it as the server does, other SQLite clients
-- (the agent, the sqlite3 shell) with their own NOCASE, and an index on it
-- would be sorted by whichever wrote it.
CREATE INDEX ixAutoJobSchedule_Job ON tAutoJobSchedule (idAutoJob);
CREATE TRIGGER trAutoJobSchedule_Zeilenversion AFTER UPDATE ON tAutoJobSchedule
FOR EACH ROW WHEN NEW.Zeilenversion = OLD.Zeilenversion
BEGIN
    UPDATE tAutoJobSchedule SET Zeilenversion = OLD.Zeilenversion + 1
    WHERE idAutoJobSchedule = NEW.idAutoJobSchedule;
END;

------------------------------------------------------------------------------
-- Run history (written by the agent service)
------------------------------------------------------------------------------

-- One row per run of a schedule. A run reaches its job only through its
-- schedule (idAutoJobSchedule -> tAutoJobSchedule.idAutoJob).
--   Erfolgreich  result code: 0 failed, 1 successful (imports),
--                2 no MTA found (4, 17, 18), 4 no data from the merchandise
--                system (28), 5 no dealer data (30), 10/11 successful/failed
--                (20), 20/21 successful/failed (21). 3 is the filter's "all"
--                and never stored.
--   MTAPath / BackupPath / ErrorMTA  the job's directories at run time.
CREATE TABLE tAutoJobVerlauf (
    idAutoJobVerlauf    INTEGER PRIMARY KEY AUTOINCREMENT,
    idAutoJobSchedule   INTEGER NOT NULL DEFAULT 0,
    LetzteAusfuehrung   DATETIME,
    Erfolgreich         INTEGER DEFAULT 0,
    MTAPath             VARCHAR(255),
    BackupPath          VARCHAR(255),
    ErrorMTA            VARCHAR(255)
);
-- The history of a job is read through its schedules within a period, and
-- deleted by schedule; the job list looks up the latest run per job.
CREATE INDEX ixAutoJobVerlauf_ScheduleZeit ON tAutoJobVerlauf (idAutoJobSchedule, LetzteAusfuehrung);
CREATE INDEX ixAutoJobVerlauf_Zeit ON tAutoJobVerlauf (LetzteAusfuehrung);

------------------------------------------------------------------------------
-- Log data of the agent service
------------------------------------------------------------------------------

-- One row per log entry.
--   LogTyp         1 and 3 entries of the service, 2 entries of a job
--   LogSubTyp      sub type, kept for the agent service
--   JobArt         job type of the entry (DatenArt), 0 for none
--   AutoJobId      job of the entry (tAutoJobJob.idAutoJob), 0 for none
--   MitarbeiterId  staff member of the entry (tMitarbeiter.MitId), 0 for none
--   Herkunft       source of a service entry
--   AuftragKennung identifier of the job run of a job entry
--   Kategorie, Name, Text, Zusatz  texts written by the agent service
CREATE TABLE SYS_JobAgentLogDaten (
    Id              INTEGER PRIMARY KEY AUTOINCREMENT,
    DatumUhrzeit    DATETIME NOT NULL DEFAULT (strftime('%Y-%m-%d %H:%M:%S', 'now', 'localtime')),
    LogTyp          INTEGER NOT NULL DEFAULT 1,
    LogSubTyp       INTEGER DEFAULT 0,
    JobArt          INTEGER DEFAULT 0,
    AutoJobId       INTEGER DEFAULT 0,
    MitarbeiterId   INTEGER DEFAULT 0,
    Herkunft        VARCHAR(100),
    AuftragKennung  VARCHAR(100),
    Kategorie       VARCHAR(50),
    Name            VARCHAR(255),
    Text            TEXT,
    Zusatz          TEXT
);
-- Browsing and deleting filter by period, kind, job and job type.
CREATE INDEX ixJobAgentLogDaten_DatumUhrzeit ON SYS_JobAgentLogDaten (DatumUhrzeit);
CREATE INDEX ixJobAgentLogDaten_AutoJobId ON SYS_JobAgentLogDaten (AutoJobId);
CREATE INDEX ixJobAgentLogDaten_JobArt ON SYS_JobAgentLogDaten (JobArt);
CREATE INDEX ixJobAgentLogDaten_LogTyp ON SYS_JobAgentLogDaten (LogTyp, DatumUhrzeit);
-- The entries of one type in the order of their ids: the viewer's job log
-- counts and steps through them without reading the table.
CREATE INDEX ixJobAgentLogDaten_LogTypId ON SYS_JobAgentLogDaten (LogTyp, Id);
-- The words of an entry's texts, for the viewer's search: kept by the database
-- itself, so that what the agent writes is found at once. The index holds the
-- words only; the texts stay in the table.
CREATE VIRTUAL TABLE SYS_JobAgentLogDaten_Suche USING fts5(
    Herkunft, AuftragKennung, Kategorie, Name, Text, Zusatz,
    content='SYS_JobAgentLogDaten', content_rowid='Id',
    tokenize='unicode61 remove_diacritics 0');
CREATE TRIGGER trJobAgentLogDaten_SucheNeu AFTER INSERT ON SYS_JobAgentLogDaten BEGIN
    INSERT INTO SYS_JobAgentLogDaten_Suche (rowid, Herkunft, AuftragKennung, Kategorie, Name, Text, Zusatz)
    VALUES (new.Id, new.Herkunft, new.AuftragKennung, new.Kategorie, new.Name, new.Text, new.Zusatz);
END;
CREATE TRIGGER trJobAgentLogDaten_SucheWeg AFTER DELETE ON SYS_JobAgentLogDaten BEGIN
    INSERT INTO SYS_JobAgentLogDaten_Suche (SYS_JobAgentLogDaten_Suche, rowid, Herkunft, AuftragKennung, Kategorie, Name, Text, Zusatz)
    VALUES ('delete', old.Id, old.Herkunft, old.AuftragKennung, old.Kategorie, old.Name, old.Text, old.Zusatz);
END;
CREATE TRIGGER trJobAgentLogDaten_SucheNeuText AFTER UPDATE OF Herkunft, AuftragKennung, Kategorie, Name, Text, Zusatz ON SYS_JobAgentLogDaten BEGIN
    INSERT INTO SYS_JobAgentLogDaten_Suche (SYS_JobAgentLogDaten_Suche, rowid, Herkunft, AuftragKennung, Kategorie, Name, Text, Zusatz)
    VALUES ('delete', old.Id, old.Herkunft, old.AuftragKennung, old.Kategorie, old.Name, old.Text, old.Zusatz);
    INSERT INTO SYS_JobAgentLogDaten_Suche (rowid, Herkunft, AuftragKennung, Kategorie, Name, Text, Zusatz)
    VALUES (new.Id, new.Herkunft, new.AuftragKennung, new.Kategorie, new.Name, new.Text, new.Zusatz);
END;

-- What each user made of a list: column order and widths (a JSON list of
-- {"name", "width"} in the order shown) and the sort, under the list's key and
-- the staff member, so that they follow the user to every workstation.
CREATE TABLE tBrowserEinstellungen (
    Schluessel      VARCHAR(200) NOT NULL,
    MitarbeiterId   INTEGER NOT NULL DEFAULT 0,
    Spalten         TEXT,
    SortSpalte      VARCHAR(200),
    SortAbsteigend  BIT DEFAULT 0,
    PRIMARY KEY (Schluessel, MitarbeiterId)
);

------------------------------------------------------------------------------
-- Tables of the agent service (kept for it; this program does not use them)
------------------------------------------------------------------------------

CREATE TABLE tAutoJobOptionen (
    idAutoJobOptionen   INTEGER PRIMARY KEY AUTOINCREMENT,
    AutoStart           BIT DEFAULT 0,
    Transaktion         BIT DEFAULT 0
);

CREATE TABLE tAutoJob (
    Id              INTEGER PRIMARY KEY AUTOINCREMENT,
    diInstallArt    INTEGER DEFAULT 0
);

CREATE TABLE tAutoJobEinstellungen (
    Id          INTEGER PRIMARY KEY AUTOINCREMENT,
    Name        VARCHAR(100),
    Wert        TEXT,
    diDataType  INTEGER DEFAULT 0
);

------------------------------------------------------------------------------
-- Change journal
------------------------------------------------------------------------------

-- One row per change of a job or schedule, written in the transaction of the
-- change itself.
--   Zeitpunkt          the database server's time of the change
--   Ps_Id_Mitarbeiter  who changed it (tMitarbeiter.MitId)
--   Arbeitsplatz       host name of the workstation
--   idAutoJob          the job; idAutoJobSchedule the schedule, NULL for a
--                      change of the job itself
--   Art                1 new, 2 changed, 3 deleted
--   Vorher / Nachher   the row's columns as a JSON object, NULL where there
--                      is no row
--   Anlass             what caused it: "Bearbeiten", "Zeitplan", "Einfügen",
--                      "Kopieren", "Aktivieren", "Deaktivieren", "Import",
--                      "Löschen", "Wiederherstellen"
CREATE TABLE tAutoJobJournal (
    idAutoJobJournal    INTEGER PRIMARY KEY AUTOINCREMENT,
    Zeitpunkt           DATETIME NOT NULL,
    Ps_Id_Mitarbeiter   INTEGER NOT NULL DEFAULT 0,
    Arbeitsplatz        VARCHAR(255) NOT NULL DEFAULT '',
    idAutoJob           INTEGER NOT NULL DEFAULT 0,
    idAutoJobSchedule   INTEGER,
    Art                 INTEGER NOT NULL CHECK (Art IN (1, 2, 3)),
    Vorher              TEXT,
    Nachher             TEXT,
    Anlass              VARCHAR(30) NOT NULL DEFAULT ''
);
-- The journal is read by job and newest first, or for all jobs by time.
CREATE INDEX ixAutoJobJournal_JobZeit ON tAutoJobJournal (idAutoJob, Zeitpunkt);
CREATE INDEX ixAutoJobJournal_Zeit ON tAutoJobJournal (Zeitpunkt);

------------------------------------------------------------------------------
-- Views
------------------------------------------------------------------------------

-- Job list.
--   Auftragsart        label of the job type; type 28 is composed of
--                      "Import Buchungen ", text 1236 and " (direkt)" (two
--                      blanks in a row when the text is empty); an unknown
--                      type gives an empty text.
--   Mandant/Kanzlei    for a job bound to a client or office: its display
--                      number (a leading "K" for an office), a blank and its
--                      name; for kinds 3, 4, 5 the kind's text "Alle
--                      Mandanten", "Alle Kanzleien", "Alle Mandanten/Kanzleien";
--                      empty when the client or office is unknown.
--   Aktiviert          "Ja" or "Nein".
--   LetzteAusfuehrung  time of the job's latest run, NULL without runs.
--   Mitarbeiter        staff member who saved the job last.
-- Date columns are plain column references so that they keep their DATETIME
-- type through the view.
CREATE VIEW V_ZPK_Applications_System_AutoJob AS
SELECT
    j.idAutoJob                                     AS JobId,
    j.Ps_Id_Mandant                                 AS PSId,
    j.Name                                          AS Name,
    CASE j.DatenArt
        WHEN 17 THEN 'Import Kunden'
        WHEN 18 THEN 'Import Lieferanten'
        WHEN 4  THEN 'Import Buchungen'
        WHEN 5  THEN 'Import Wirtschaftsgüter'
        WHEN 28 THEN 'Import Buchungen '
                     || COALESCE((SELECT t.Text FROM tSuiteText t WHERE t.TextId = 1236), '')
                     || ' (direkt)'
        WHEN 30 THEN 'Import Nivora'
        WHEN 20 THEN 'Übernahme Scan-Dokumente'
        WHEN 21 THEN 'Verschlagwortung Belege'
        WHEN 99 THEN 'Textdatei-Import'
        ELSE ''
    END                                             AS Auftragsart,
    CASE
        WHEN j.MandKanz = 3 THEN 'Alle Mandanten'
        WHEN j.MandKanz = 4 THEN 'Alle Kanzleien'
        WHEN j.MandKanz = 5 THEN 'Alle Mandanten/Kanzleien'
        WHEN m.ManId IS NOT NULL THEN
            CASE WHEN m.Kanzlei = 1 THEN 'K' ELSE '' END
            || m.ManNr
            || CASE WHEN COALESCE(m.Name, '') <> '' THEN ' ' || m.Name ELSE '' END
        ELSE ''
    END                                             AS [Mandant/Kanzlei],
    CASE WHEN j.Aktiviert = 1 THEN 'Ja' ELSE 'Nein' END AS Aktiviert,
    -- The latest run: per schedule of the job the newest on the index of schedule and time,
    -- so that a job with millions of runs costs no more than one without. A value in the
    -- select list, not a join: counting the list and skipping rows never computes it.
    (SELECT max((SELECT max(z.LetzteAusfuehrung)
                   FROM tAutoJobVerlauf z
                  WHERE z.idAutoJobSchedule = s.idAutoJobSchedule))
       FROM tAutoJobSchedule s
      WHERE s.idAutoJob = j.idAutoJob)              AS LetzteAusfuehrung,
    j.LetzteAenderung                               AS LetzteAenderung,
    COALESCE(ma.Name, '')                           AS Mitarbeiter,
    j.Erstellt                                      AS Erstellt,
    j.Beschreibung                                  AS Beschreibung
FROM tAutoJobJob j
LEFT JOIN tMandant m
       ON m.ManId = j.Ps_Id_Mandant
LEFT JOIN tMitarbeiter ma
       ON ma.MitId = j.Ps_Id_Mitarbeiter;

-- Log data browser.
--   Typ          LogTyp: 1 and 3 service, 2 job
--   Mitarbeiter  name of the entry's staff member, empty for none
--   Auftragsart  label of JobArt, composed as in the job list
--   Name         the name the agent wrote, else the job's name
-- Staff and job names are looked up per row shown, not joined: counting the
-- log and skipping rows then never touches the other tables, which keeps the
-- viewer fast on millions of entries.
CREATE VIEW SYS_JobAgentLogDaten_Anzeigen AS
SELECT
    l.Id                                            AS Id,
    l.AutoJobId                                     AS AutoJobId,
    l.LogTyp                                        AS Typ,
    COALESCE(l.Herkunft, '')                        AS Herkunft,
    COALESCE(l.AuftragKennung, '')                  AS [Auftrag Kennung],
    COALESCE((SELECT m.Name FROM tMitarbeiter m WHERE m.MitId = l.MitarbeiterId), '')
                                                    AS Mitarbeiter,
    l.DatumUhrzeit                                  AS [Datum/Uhrzeit],
    COALESCE(l.Kategorie, '')                       AS Kategorie,
    CASE l.JobArt
        WHEN 17 THEN 'Import Kunden'
        WHEN 18 THEN 'Import Lieferanten'
        WHEN 4  THEN 'Import Buchungen'
        WHEN 5  THEN 'Import Wirtschaftsgüter'
        WHEN 28 THEN 'Import Buchungen '
                     || COALESCE((SELECT t.Text FROM tSuiteText t WHERE t.TextId = 1236), '')
                     || ' (direkt)'
        WHEN 30 THEN 'Import Nivora'
        WHEN 20 THEN 'Übernahme Scan-Dokumente'
        WHEN 21 THEN 'Verschlagwortung Belege'
        WHEN 99 THEN 'Textdatei-Import'
        ELSE ''
    END                                             AS Auftragsart,
    COALESCE(l.Name, (SELECT j.Name FROM tAutoJobJob j WHERE j.idAutoJob = l.AutoJobId), '')
                                                    AS Name,
    COALESCE(l.Text, '')                            AS Text,
    COALESCE(l.Zusatz, '')                          AS Zusatz
FROM SYS_JobAgentLogDaten l;

------------------------------------------------------------------------------
-- Statistics for the query planner
------------------------------------------------------------------------------

-- The shape of a grown log, so that SQLite plans the viewer's statements for
-- millions of entries from the start: three types, a few hundred jobs, ten job
-- types, nearly one entry per second. Without them it takes every index for
-- selective and sorts a whole type to show its first rows. ANALYZE on a real
-- database replaces these figures with measured ones.
ANALYZE sqlite_master;
INSERT INTO sqlite_stat1 (tbl, idx, stat) VALUES
    ('SYS_JobAgentLogDaten', 'ixJobAgentLogDaten_LogTyp', '10000000 3333334 2'),
    ('SYS_JobAgentLogDaten', 'ixJobAgentLogDaten_LogTypId', '10000000 3333334 1'),
    ('SYS_JobAgentLogDaten', 'ixJobAgentLogDaten_DatumUhrzeit', '10000000 2'),
    ('SYS_JobAgentLogDaten', 'ixJobAgentLogDaten_AutoJobId', '10000000 33334'),
    ('SYS_JobAgentLogDaten', 'ixJobAgentLogDaten_JobArt', '10000000 1000000');
