-- Demo data, applied after schema.sql. INSERTs only.
-- Times are relative to the moment of loading (local time), so that the run
-- history and the log data always cover the last weeks.
-- Passwords of the archive jobs, in clear: job 8 "Archiv#2024",
-- job 9 "Prüfung1", job 13 "Scan!Beleg7".

-- Numbered texts of the suite
INSERT INTO tSuiteText (TextId, Text) VALUES (1001, 'Suite');
INSERT INTO tSuiteText (TextId, Text) VALUES (1024, 'Daten');
INSERT INTO tSuiteText (TextId, Text) VALUES (1025, 'Programme');
INSERT INTO tSuiteText (TextId, Text) VALUES (1228, 'JobAgent');
INSERT INTO tSuiteText (TextId, Text) VALUES (1236, 'Kesto');

-- Staff members
INSERT INTO tMitarbeiter (MitId, Name) VALUES (1, 'Administrator');
INSERT INTO tMitarbeiter (MitId, Name) VALUES (2, 'Anna Berger');
INSERT INTO tMitarbeiter (MitId, Name) VALUES (3, 'Jonas Keller');
INSERT INTO tMitarbeiter (MitId, Name) VALUES (4, 'Miriam Schulte');

-- Clients and offices
INSERT INTO tMandant (ManId, ManNr, Kanzlei, Name) VALUES (1, 10010, 0, 'Bäckerei Huber GmbH');
INSERT INTO tMandant (ManId, ManNr, Kanzlei, Name) VALUES (2, 10020, 0, 'Autohaus Lindner KG');
INSERT INTO tMandant (ManId, ManNr, Kanzlei, Name) VALUES (3, 10030, 0, 'Praxis Dr. Weber');
INSERT INTO tMandant (ManId, ManNr, Kanzlei, Name) VALUES (4, 20100, 0, 'Elektro Sommer e.K.');
INSERT INTO tMandant (ManId, ManNr, Kanzlei, Name) VALUES (5, 1, 1, 'Steuerkanzlei Brandt & Partner');
INSERT INTO tMandant (ManId, ManNr, Kanzlei, Name) VALUES (6, 2, 1, 'Kanzlei Neumann');

-- Fiscal years
INSERT INTO person_wirtschaftsjahr (WJ_Id, Ps_Id, WJ_Jahr, WJ_Beginn, WJ_Ende)
VALUES (1, 1, CAST(strftime('%Y', 'now', 'localtime') AS INTEGER),
        datetime('now', 'localtime', 'start of year'), datetime('now', 'localtime', 'start of year', '+1 years', '-1 days'));
INSERT INTO person_wirtschaftsjahr (WJ_Id, Ps_Id, WJ_Jahr, WJ_Beginn, WJ_Ende)
VALUES (2, 1, CAST(strftime('%Y', 'now', 'localtime', 'start of year', '-1 years') AS INTEGER),
        datetime('now', 'localtime', 'start of year', '-1 years'),
        datetime('now', 'localtime', 'start of year', '-1 days'));
INSERT INTO person_wirtschaftsjahr (WJ_Id, Ps_Id, WJ_Jahr, WJ_Beginn, WJ_Ende)
VALUES (3, 2, CAST(strftime('%Y', 'now', 'localtime') AS INTEGER),
        datetime('now', 'localtime', 'start of year'), datetime('now', 'localtime', 'start of year', '+1 years', '-1 days'));

-- Document types of the merchandise system
INSERT INTO XB_Belegart_iKesto (Nummer, Bezeichnung) VALUES (1, 'Ausgangsrechnung');
INSERT INTO XB_Belegart_iKesto (Nummer, Bezeichnung) VALUES (2, 'Gutschrift');
INSERT INTO XB_Belegart_iKesto (Nummer, Bezeichnung) VALUES (3, 'Barverkauf');
INSERT INTO XB_Belegart_iKesto (Nummer, Bezeichnung) VALUES (5, 'Eingangsrechnung');
INSERT INTO XB_Belegart_iKesto (Nummer, Bezeichnung) VALUES (7, 'Retoure');
INSERT INTO XB_Belegart_iKesto (Nummer, Bezeichnung) VALUES (10, 'Anzahlungsrechnung');

------------------------------------------------------------------------------
-- Jobs
------------------------------------------------------------------------------

INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, BackupPath, ErrorMTA,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, SingleLog, FremdFormat,
                         FremdDateifilter, FremdMapping, LetzteAenderung)
VALUES (1, datetime('now', 'localtime', 'start of day', '-120 days', '+9 hours', '+12 minutes'),
        'Kunden Bäckerei Huber', 'Übernimmt die Kunden aus der Warenwirtschaft.', 1, 17,
        '/srv/zpk/import/kunden/10010', '/srv/zpk/backup/kunden/10010', '/srv/zpk/log/kunden',
        1, 1, 2, '2', 0, 0, '', '',
        datetime('now', 'localtime', 'start of day', '-30 days', '+14 hours', '+5 minutes'));

INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, BackupPath, ErrorMTA,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, SingleLog, FremdFormat,
                         FremdDateifilter, FremdMapping, LetzteAenderung)
VALUES (2, datetime('now', 'localtime', 'start of day', '-110 days', '+10 hours'),
        'Lieferanten Autohaus Lindner', '', 1, 18,
        '/srv/zpk/import/lieferanten/10020', '/srv/zpk/backup/lieferanten/10020', '/srv/zpk/log/lieferanten',
        2, 1, 3, '3', 0, 0, '', '',
        datetime('now', 'localtime', 'start of day', '-60 days', '+11 hours', '+40 minutes'));

-- Bookings in a foreign format (CSV with a mapping file). The description
-- holds a line break CR LF; char is quoted because PostgreSQL reads char( as
-- the type
INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, BackupPath, ErrorMTA,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, SingleLog, FremdFormat,
                         FremdDateifilter, FremdMapping, LetzteAenderung)
VALUES (3, datetime('now', 'localtime', 'start of day', '-100 days', '+8 hours', '+45 minutes'),
        'Buchungen Bäckerei Huber (CSV)', 'Kassenbuchungen der Filialen.' || "char"(13, 10) || 'Mapping in der Importdatei.', 1, 4,
        '/srv/zpk/import/buchungen/10010', '/srv/zpk/backup/buchungen/10010', '/srv/zpk/import/buchungen/10010/fehler',
        1, 1, 2, '2', 1, 1, '*.csv', 'Kasse_Mapping.xml',
        datetime('now', 'localtime', 'start of day', '-7 days', '+16 hours', '+20 minutes'));

-- An older row: empty Zusatzinfo, the last editor stands in as staff member
INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, BackupPath, ErrorMTA,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, SingleLog, FremdFormat,
                         FremdDateifilter, FremdMapping, LetzteAenderung)
VALUES (4, datetime('now', 'localtime', 'start of day', '-400 days', '+7 hours'),
        'Buchungen aller Mandanten', '', 1, 4,
        '/srv/zpk/import/buchungen', '/srv/zpk/backup/buchungen', '/srv/zpk/import/buchungen/fehler',
        0, 3, 3, '', 0, 0, '', '',
        datetime('now', 'localtime', 'start of day', '-200 days', '+9 hours'));

INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, BackupPath, ErrorMTA,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, SingleLog, FremdFormat,
                         FremdDateifilter, FremdMapping, LetzteAenderung)
VALUES (5, datetime('now', 'localtime', 'start of day', '-210 days', '+13 hours'),
        'Anlagen aller Kanzleien', 'Wirtschaftsgüter aus der Anlagenverwaltung.', 1, 5,
        '/srv/zpk/import/anlagen', '/srv/zpk/backup/anlagen', '/srv/zpk/log/anlagen',
        0, 4, 1, '', 0, 0, '', '',
        datetime('now', 'localtime', 'start of day', '-90 days', '+13 hours', '+30 minutes'));

-- Direct bookings of the merchandise system: some document types, and all ("0")
INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, BackupPath, ErrorMTA,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, SingleLog, FremdFormat,
                         FremdDateifilter, FremdMapping, LetzteAenderung)
VALUES (6, datetime('now', 'localtime', 'start of day', '-95 days', '+10 hours', '+5 minutes'),
        'Kesto direkt Autohaus Lindner', '', 1, 28,
        '/srv/zpk/kesto/10020', '1,3,5', '',
        2, 1, 3, '3', 0, 0, '', '',
        datetime('now', 'localtime', 'start of day', '-15 days', '+10 hours'));

INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, BackupPath, ErrorMTA,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, SingleLog, FremdFormat,
                         FremdDateifilter, FremdMapping, LetzteAenderung)
VALUES (7, datetime('now', 'localtime', 'start of day', '-85 days', '+15 hours'),
        'Kesto direkt Elektro Sommer', 'Alle Belegarten.', 1, 28,
        '/srv/zpk/kesto/20100', '0', '',
        4, 1, 4, '4', 0, 0, '', '',
        datetime('now', 'localtime', 'start of day', '-85 days', '+15 hours', '+10 minutes'));

-- Archive jobs: MTAPath holds the staff id of the archive login,
-- BackupPath the password in its stored form
INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, BackupPath, ErrorMTA,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, SingleLog, FremdFormat,
                         FremdDateifilter, FremdMapping, LetzteAenderung)
VALUES (8, datetime('now', 'localtime', 'start of day', '-75 days', '+9 hours'),
        'Scan-Dokumente Kanzlei Brandt', '', 1, 20,
        '2', '4323032332679686362714', '/srv/zpk/log/scan',
        5, 2, 1, '', 0, 0, '', '',
        datetime('now', 'localtime', 'start of day', '-20 days', '+8 hours', '+15 minutes'));

INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, BackupPath, ErrorMTA,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, SingleLog, FremdFormat,
                         FremdDateifilter, FremdMapping, LetzteAenderung)
VALUES (9, datetime('now', 'localtime', 'start of day', '-72 days', '+11 hours'),
        'Verschlagwortung aller Belege', 'Für Mandanten und Kanzleien.', 1, 21,
        '3', '1376e65766cf2705', '/srv/zpk/log/verschlagwortung',
        0, 5, 1, '', 0, 0, '', '',
        datetime('now', 'localtime', 'start of day', '-72 days', '+11 hours', '+25 minutes'));

-- Text file imports: one text file, and a script with several text files
-- given as name patterns for all offices
INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, BackupPath, ErrorMTA,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, SingleLog, FremdFormat,
                         FremdDateifilter, FremdMapping, LetzteAenderung)
VALUES (10, datetime('now', 'localtime', 'start of day', '-160 days', '+10 hours'),
        'Artikel Praxis Dr. Weber', '', 1, 99,
        '/srv/zpk/import/formate', '/srv/zpk/backup/text', '/srv/zpk/log/text',
        3, 1, 4, '4|/srv/zpk/skripte/Artikel.opt|/srv/zpk/import/text/artikel_10030.txt', 0, 0, '', '',
        datetime('now', 'localtime', 'start of day', '-150 days', '+10 hours', '+30 minutes'));

INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, BackupPath, ErrorMTA,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, SingleLog, FremdFormat,
                         FremdDateifilter, FremdMapping, LetzteAenderung)
VALUES (11, datetime('now', 'localtime', 'start of day', '-155 days', '+14 hours'),
        'Stammdaten aller Kanzleien', 'Adressen und Konten je Kanzlei.', 1, 99,
        '/srv/zpk/import/formate', '/srv/zpk/backup/stammdaten', '/srv/zpk/log/stammdaten',
        0, 4, 2,
        '2|/srv/zpk/skripte/Stammdaten.opt|Adressen?/srv/zpk/import/text/Adressen*.csv?Konten?/srv/zpk/import/text/konten_nodel.csv',
        0, 0, '', '',
        datetime('now', 'localtime', 'start of day', '-40 days', '+9 hours', '+50 minutes'));

-- Dealer data job of an earlier installation, no longer active
INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, BackupPath, ErrorMTA,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, SingleLog, FremdFormat,
                         FremdDateifilter, FremdMapping, LetzteAenderung)
VALUES (12, datetime('now', 'localtime', 'start of day', '-500 days', '+8 hours'),
        'Nivora Händlerdaten Elektro Sommer', '', 0, 30,
        '/srv/zpk/nivora/export', '/srv/zpk/nivora/archiv', '/srv/zpk/nivora/temp',
        4, 1, 1, '1', 0, 0, '', '',
        datetime('now', 'localtime', 'start of day', '-30 days', '+17 hours'));

-- Inactive job without any schedule
INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, BackupPath, ErrorMTA,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, SingleLog, FremdFormat,
                         FremdDateifilter, FremdMapping, LetzteAenderung)
VALUES (13, datetime('now', 'localtime', 'start of day', '-10 days', '+12 hours'),
        'Scan-Dokumente Bäckerei Huber', 'Noch in Vorbereitung.', 0, 20,
        '4', '737656c6562412e6163635', '/srv/zpk/log/scan/10010',
        1, 1, 4, '', 0, 0, '', '',
        datetime('now', 'localtime', 'start of day', '-10 days', '+12 hours', '+5 minutes'));

INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, BackupPath, ErrorMTA,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, SingleLog, FremdFormat,
                         FremdDateifilter, FremdMapping, LetzteAenderung)
VALUES (14, datetime('now', 'localtime', 'start of day', '-25 days', '+9 hours'),
        'Kunden Kanzlei Neumann', '', 1, 17,
        '/srv/zpk/import/kunden/K2', '/srv/zpk/backup/kunden/K2', '/srv/zpk/log/kunden',
        6, 2, 1, '1', 0, 0, '', '',
        datetime('now', 'localtime', 'start of day', '-25 days', '+9 hours', '+20 minutes'));

------------------------------------------------------------------------------
-- Schedules
------------------------------------------------------------------------------

-- Job 1: weekly on Monday, Wednesday, Friday at 06:30, no end date
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (1, 1, 'Zeitplan01', 1, 8, 1, 42, 0, 1, 1, 63000, 235959,
        datetime('now', 'localtime', 'start of day', '-90 days'), '9999-12-31 00:00:00',
        datetime('now', 'localtime', 'start of day', '-30 days', '+14 hours', '+5 minutes'), 2);

-- Job 1: inactive, monthly on the fourth Friday at 20:00
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (2, 1, 'Zeitplan02', 0, 32, 1, 6, 8, 1, 1, 200000, 235959,
        datetime('now', 'localtime', 'start of day', '-30 days'), '9999-12-31 00:00:00',
        datetime('now', 'localtime', 'start of day', '-30 days', '+14 hours', '+2 minutes'), 2);

-- Job 2: daily, every 2 hours from 08:00 to 18:00
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (3, 2, 'Zeitplan01', 1, 4, 0, 1, 0, 2, 8, 80000, 180000,
        datetime('now', 'localtime', 'start of day', '-60 days'), '9999-12-31 00:00:00',
        datetime('now', 'localtime', 'start of day', '-60 days', '+11 hours', '+40 minutes'), 3);

-- Job 2: monthly on the third Sunday at 12:00
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (4, 2, 'Zeitplan02', 1, 32, 1, 1, 4, 1, 1, 120000, 235959,
        datetime('now', 'localtime', 'start of day', '-60 days'), '9999-12-31 00:00:00',
        datetime('now', 'localtime', 'start of day', '-60 days', '+11 hours', '+45 minutes'), 3);

-- Job 3: every 2 days, every 30 minutes from 07:00 to 19:00, with an end date
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (5, 3, 'Zeitplan01', 1, 4, 0, 2, 0, 30, 4, 70000, 190000,
        datetime('now', 'localtime', 'start of day', '-45 days'),
        datetime('now', 'localtime', 'start of day', '+180 days'),
        datetime('now', 'localtime', 'start of day', '-7 days', '+16 hours', '+20 minutes'), 2);

-- Job 3: once, in five days at 14:30 (end date = start date)
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (6, 3, 'Zeitplan02', 1, 1, 0, 0, 0, 0, 1, 143000, 235959,
        datetime('now', 'localtime', 'start of day', '+5 days'),
        datetime('now', 'localtime', 'start of day', '+5 days'),
        datetime('now', 'localtime', 'start of day', '-7 days', '+16 hours', '+22 minutes'), 2);

-- Job 4: monthly on day 15 at 22:00
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (7, 4, 'Monatsabschluss', 1, 16, 1, 15, 0, 1, 1, 220000, 235959,
        datetime('now', 'localtime', 'start of day', '-120 days'), '9999-12-31 00:00:00',
        datetime('now', 'localtime', 'start of day', '-200 days', '+9 hours'), 3);

-- Job 5: monthly on the first Monday at 05:00
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (8, 5, 'Zeitplan01', 1, 32, 1, 2, 1, 1, 1, 50000, 235959,
        datetime('now', 'localtime', 'start of day', '-200 days'), '9999-12-31 00:00:00',
        datetime('now', 'localtime', 'start of day', '-90 days', '+13 hours', '+30 minutes'), 1);

-- Job 6: daily, every 4 hours from 06:00 to 22:00
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (9, 6, 'Zeitplan01', 1, 4, 0, 1, 0, 4, 8, 60000, 220000,
        datetime('now', 'localtime', 'start of day', '-95 days'), '9999-12-31 00:00:00',
        datetime('now', 'localtime', 'start of day', '-15 days', '+10 hours'), 3);

-- Job 7: every 2nd week on Saturday and Sunday at 09:00
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (10, 7, 'Wochenende', 1, 8, 2, 65, 0, 1, 1, 90000, 235959,
        datetime('now', 'localtime', 'start of day', '-85 days'), '9999-12-31 00:00:00',
        datetime('now', 'localtime', 'start of day', '-85 days', '+15 hours', '+10 minutes'), 4);

-- Job 8: daily, every 15 minutes from 07:00 to 20:00
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (11, 8, 'Zeitplan01', 1, 4, 0, 1, 0, 15, 4, 70000, 200000,
        datetime('now', 'localtime', 'start of day', '-70 days'), '9999-12-31 00:00:00',
        datetime('now', 'localtime', 'start of day', '-20 days', '+8 hours', '+15 minutes'), 1);

-- Job 9: weekly Monday to Friday, every 4 hours from 06:00 to 22:00
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (12, 9, 'Zeitplan01', 1, 8, 1, 62, 0, 4, 8, 60000, 220000,
        datetime('now', 'localtime', 'start of day', '-70 days'), '9999-12-31 00:00:00',
        datetime('now', 'localtime', 'start of day', '-72 days', '+11 hours', '+25 minutes'), 1);

-- Job 10: every 3 months on day 31 at midnight, ending in a year
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (13, 10, 'Quartal', 1, 16, 3, 31, 0, 1, 1, 0, 235959,
        datetime('now', 'localtime', 'start of day', '-150 days'),
        datetime('now', 'localtime', 'start of day', '+365 days'),
        datetime('now', 'localtime', 'start of day', '-150 days', '+10 hours', '+30 minutes'), 4);

-- Job 11: monthly on the last weekday at 23:30
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (14, 11, 'Zeitplan01', 1, 32, 1, 9, 16, 1, 1, 233000, 235959,
        datetime('now', 'localtime', 'start of day', '-150 days'), '9999-12-31 00:00:00',
        datetime('now', 'localtime', 'start of day', '-40 days', '+9 hours', '+50 minutes'), 2);

-- Job 11: every 2nd month on the second day, every 90 minutes from 08:00 to 17:00
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (15, 11, 'Zeitplan02', 1, 32, 2, 8, 2, 90, 4, 80000, 170000,
        datetime('now', 'localtime', 'start of day', '-40 days'), '9999-12-31 00:00:00',
        datetime('now', 'localtime', 'start of day', '-40 days', '+9 hours', '+55 minutes'), 2);

-- Job 12: inactive, weekly on Monday at 04:00
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (16, 12, 'Zeitplan01', 0, 8, 1, 2, 0, 1, 1, 40000, 235959,
        datetime('now', 'localtime', 'start of day', '-400 days'), '9999-12-31 00:00:00',
        datetime('now', 'localtime', 'start of day', '-30 days', '+17 hours'), 1);

-- Job 14: monthly on the third weekend day at 12:00
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, FreqencyType, FrequencyRecurrenceFactor,
    FrequencyInterval, FrequencyRelativeInterval, FrequencySubDayinterval, FrequencySubDay,
    ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate, LetzteAenderung, Ps_Id)
VALUES (17, 14, 'Zeitplan01', 1, 32, 1, 10, 4, 1, 1, 120000, 235959,
        datetime('now', 'localtime', 'start of day', '-20 days'), '9999-12-31 00:00:00',
        datetime('now', 'localtime', 'start of day', '-25 days', '+9 hours', '+20 minutes'), 1);

------------------------------------------------------------------------------
-- Run history (as the agent service writes it)
------------------------------------------------------------------------------

-- Job 1, customers (schedule 1)
INSERT INTO tAutoJobVerlauf (idAutoJobSchedule, LetzteAusfuehrung, Erfolgreich, MTAPath, BackupPath, ErrorMTA) VALUES
 (1, datetime('now', 'localtime', 'start of day', '-1 days', '+6 hours', '+30 minutes'), 1,
     '/srv/zpk/import/kunden/10010', '/srv/zpk/backup/kunden/10010', '/srv/zpk/log/kunden'),
 (1, datetime('now', 'localtime', 'start of day', '-3 days', '+6 hours', '+30 minutes'), 1,
     '/srv/zpk/import/kunden/10010', '/srv/zpk/backup/kunden/10010', '/srv/zpk/log/kunden'),
 (1, datetime('now', 'localtime', 'start of day', '-5 days', '+6 hours', '+30 minutes'), 2,
     '/srv/zpk/import/kunden/10010', '/srv/zpk/backup/kunden/10010', '/srv/zpk/log/kunden'),
 (1, datetime('now', 'localtime', 'start of day', '-8 days', '+6 hours', '+30 minutes'), 0,
     '/srv/zpk/import/kunden/10010', '/srv/zpk/backup/kunden/10010', '/srv/zpk/log/kunden'),
 (1, datetime('now', 'localtime', 'start of day', '-12 days', '+6 hours', '+30 minutes'), 1,
     '/srv/zpk/import/kunden/10010', '/srv/zpk/backup/kunden/10010', '/srv/zpk/log/kunden'),
 (1, datetime('now', 'localtime', 'start of day', '-26 days', '+6 hours', '+30 minutes'), 1,
     '/srv/zpk/import/kunden/10010', '/srv/zpk/backup/kunden/10010', '/srv/zpk/log/kunden'),
 (1, datetime('now', 'localtime', 'start of day', '-40 days', '+6 hours', '+30 minutes'), 1,
     '/srv/zpk/import/kunden/10010', '/srv/zpk/backup/kunden/10010', '/srv/zpk/log/kunden');

-- Job 2, suppliers (schedule 3)
INSERT INTO tAutoJobVerlauf (idAutoJobSchedule, LetzteAusfuehrung, Erfolgreich, MTAPath, BackupPath, ErrorMTA) VALUES
 (3, datetime('now', 'localtime', 'start of day', '-1 days', '+8 hours'), 1,
     '/srv/zpk/import/lieferanten/10020', '/srv/zpk/backup/lieferanten/10020', '/srv/zpk/log/lieferanten'),
 (3, datetime('now', 'localtime', 'start of day', '-1 days', '+10 hours'), 2,
     '/srv/zpk/import/lieferanten/10020', '/srv/zpk/backup/lieferanten/10020', '/srv/zpk/log/lieferanten'),
 (3, datetime('now', 'localtime', 'start of day', '-2 days', '+8 hours'), 1,
     '/srv/zpk/import/lieferanten/10020', '/srv/zpk/backup/lieferanten/10020', '/srv/zpk/log/lieferanten'),
 (3, datetime('now', 'localtime', 'start of day', '-20 days', '+12 hours'), 0,
     '/srv/zpk/import/lieferanten/10020', '/srv/zpk/backup/lieferanten/10020', '/srv/zpk/log/lieferanten');

-- Job 3, bookings (schedule 5); its log directory is the import directory
INSERT INTO tAutoJobVerlauf (idAutoJobSchedule, LetzteAusfuehrung, Erfolgreich, MTAPath, BackupPath, ErrorMTA) VALUES
 (5, datetime('now', 'localtime', 'start of day', '-2 days', '+7 hours'), 1,
     '/srv/zpk/import/buchungen/10010', '/srv/zpk/backup/buchungen/10010', '/srv/zpk/import/buchungen/10010/fehler'),
 (5, datetime('now', 'localtime', 'start of day', '-2 days', '+7 hours', '+30 minutes'), 2,
     '/srv/zpk/import/buchungen/10010', '/srv/zpk/backup/buchungen/10010', '/srv/zpk/import/buchungen/10010/fehler'),
 (5, datetime('now', 'localtime', 'start of day', '-4 days', '+9 hours'), 0,
     '/srv/zpk/import/buchungen/10010', '/srv/zpk/backup/buchungen/10010', '/srv/zpk/import/buchungen/10010/fehler'),
 (5, datetime('now', 'localtime', 'start of day', '-16 days', '+7 hours'), 1,
     '/srv/zpk/import/buchungen/10010', '/srv/zpk/backup/buchungen/10010', '/srv/zpk/import/buchungen/10010/fehler');

-- Job 4, bookings of all clients (schedule 7)
INSERT INTO tAutoJobVerlauf (idAutoJobSchedule, LetzteAusfuehrung, Erfolgreich, MTAPath, BackupPath, ErrorMTA) VALUES
 (7, datetime('now', 'localtime', 'start of day', '-20 days', '+22 hours'), 1,
     '/srv/zpk/import/buchungen', '/srv/zpk/backup/buchungen', '/srv/zpk/import/buchungen/fehler'),
 (7, datetime('now', 'localtime', 'start of day', '-50 days', '+22 hours'), 0,
     '/srv/zpk/import/buchungen', '/srv/zpk/backup/buchungen', '/srv/zpk/import/buchungen/fehler');

-- Jobs 6 and 7, direct bookings of the merchandise system (schedules 9, 10)
INSERT INTO tAutoJobVerlauf (idAutoJobSchedule, LetzteAusfuehrung, Erfolgreich, MTAPath, BackupPath, ErrorMTA) VALUES
 (9, datetime('now', 'localtime', 'start of day', '-1 days', '+6 hours'), 1,
     '/srv/zpk/kesto/10020', '', ''),
 (9, datetime('now', 'localtime', 'start of day', '-1 days', '+10 hours'), 4,
     '/srv/zpk/kesto/10020', '', ''),
 (9, datetime('now', 'localtime', 'start of day', '-6 days', '+14 hours'), 0,
     '/srv/zpk/kesto/10020', '', ''),
 (9, datetime('now', 'localtime', 'start of day', '-30 days', '+6 hours'), 1,
     '/srv/zpk/kesto/10020', '', ''),
 (10, datetime('now', 'localtime', 'start of day', '-7 days', '+9 hours'), 4,
     '/srv/zpk/kesto/20100', '', ''),
 (10, datetime('now', 'localtime', 'start of day', '-14 days', '+9 hours'), 1,
     '/srv/zpk/kesto/20100', '', '');

-- Job 8, scanned documents (schedule 11); one run names its log file directly
INSERT INTO tAutoJobVerlauf (idAutoJobSchedule, LetzteAusfuehrung, Erfolgreich, MTAPath, BackupPath, ErrorMTA) VALUES
 (11, datetime('now', 'localtime', 'start of day', '-1 days', '+7 hours', '+15 minutes'), 10,
     '', '', '/srv/zpk/log/scan'),
 (11, datetime('now', 'localtime', 'start of day', '-2 days', '+7 hours'), 11,
     '', '', '/srv/zpk/log/scan/Scandokument_K1.txt'),
 (11, datetime('now', 'localtime', 'start of day', '-9 days', '+11 hours', '+45 minutes'), 10,
     '', '', '/srv/zpk/log/scan');

-- Job 9, indexing of vouchers (schedule 12)
INSERT INTO tAutoJobVerlauf (idAutoJobSchedule, LetzteAusfuehrung, Erfolgreich, MTAPath, BackupPath, ErrorMTA) VALUES
 (12, datetime('now', 'localtime', 'start of day', '-1 days', '+6 hours'), 20,
     '', '', '/srv/zpk/log/verschlagwortung'),
 (12, datetime('now', 'localtime', 'start of day', '-3 days', '+10 hours'), 21,
     '', '', '/srv/zpk/log/verschlagwortung'),
 (12, datetime('now', 'localtime', 'start of day', '-24 days', '+14 hours'), 20,
     '', '', '/srv/zpk/log/verschlagwortung');

-- Job 12, dealer data (schedule 16), from before it was switched off
INSERT INTO tAutoJobVerlauf (idAutoJobSchedule, LetzteAusfuehrung, Erfolgreich, MTAPath, BackupPath, ErrorMTA) VALUES
 (16, datetime('now', 'localtime', 'start of day', '-35 days', '+4 hours'), 5,
     '/srv/zpk/nivora/export', '/srv/zpk/nivora/archiv', '/srv/zpk/nivora/temp'),
 (16, datetime('now', 'localtime', 'start of day', '-42 days', '+4 hours'), 1,
     '/srv/zpk/nivora/export', '/srv/zpk/nivora/archiv', '/srv/zpk/nivora/temp'),
 (16, datetime('now', 'localtime', 'start of day', '-49 days', '+4 hours'), 0,
     '/srv/zpk/nivora/export', '/srv/zpk/nivora/archiv', '/srv/zpk/nivora/temp');

------------------------------------------------------------------------------
-- Log data of the agent service
------------------------------------------------------------------------------

-- Entries of the service (LogTyp 1 and 3)
INSERT INTO SYS_JobAgentLogDaten (DatumUhrzeit, LogTyp, LogSubTyp, JobArt, AutoJobId, MitarbeiterId,
                                  Herkunft, AuftragKennung, Kategorie, Name, Text, Zusatz) VALUES
 (datetime('now', 'localtime', 'start of day', '-10 days', '+3 hours', '+12 minutes'), 3, 0, 0, 0, 0,
  'Dienst', '', 'Fehler', 'JobAgent', 'Der Dienst wurde unerwartet beendet.', 'Ausnahme in der Zeitplanung.'),
 (datetime('now', 'localtime', 'start of day', '-10 days', '+3 hours', '+15 minutes'), 1, 0, 0, 0, 0,
  'Dienst', '', 'Information', 'JobAgent', 'Der Dienst wurde gestartet.', 'Version 3.2.0'),
 (datetime('now', 'localtime', 'start of day', '-3 days', '+2 hours'), 1, 0, 0, 0, 0,
  'Datenbank', '', 'Warnung', 'JobAgent', 'Verbindung zur Datenbank nach 2 Versuchen wiederhergestellt.', ''),
 (datetime('now', 'localtime', 'start of day', '-2 days', '+9 hours'), 3, 0, 4, 3, 2,
  'Starter', '', 'Fehler', NULL, 'Der Auftrag konnte nicht gestartet werden.', 'ZPKyJobStart.exe /JOBID=3 /MITID=2'),
 (datetime('now', 'localtime', 'start of day', '-1 days', '+5 hours'), 1, 0, 0, 0, 0,
  'Dienst', '', 'Information', 'JobAgent', 'Der Dienst wurde gestartet.', 'Version 3.2.0'),
 (datetime('now', 'localtime', 'start of day', '-1 days', '+5 hours', '+1 minutes'), 1, 0, 0, 0, 0,
  'Zeitplanung', '', 'Information', 'JobAgent', '15 aktive Zeitpläne geladen.', ''),
 (datetime('now', 'localtime', 'start of day', '-1 days', '+6 hours', '+30 minutes'), 1, 0, 17, 1, 0,
  'Zeitplanung', '', 'Information', NULL, 'Auftrag gestartet.', 'Zeitplan01');

-- Entries of jobs (LogTyp 2)
INSERT INTO SYS_JobAgentLogDaten (DatumUhrzeit, LogTyp, LogSubTyp, JobArt, AutoJobId, MitarbeiterId,
                                  Herkunft, AuftragKennung, Kategorie, Name, Text, Zusatz) VALUES
 (datetime('now', 'localtime', 'start of day', '-1 days', '+6 hours', '+31 minutes'), 2, 0, 17, 1, 2,
  'Auftrag', 'Auftrag 1, Zeitplan 1', 'Information', NULL, '42 Kunden importiert.', 'KUND10010.XLS'),
 (datetime('now', 'localtime', 'start of day', '-5 days', '+6 hours', '+30 minutes'), 2, 0, 17, 1, 2,
  'Auftrag', 'Auftrag 1, Zeitplan 1', 'Warnung', NULL, 'Keine Importdatei gefunden.', '/srv/zpk/import/kunden/10010'),
 (datetime('now', 'localtime', 'start of day', '-1 days', '+10 hours', '+1 minutes'), 2, 0, 18, 2, 3,
  'Auftrag', 'Auftrag 2, Zeitplan 3', 'Warnung', NULL, 'Keine Importdatei gefunden.', '/srv/zpk/import/lieferanten/10020'),
 (datetime('now', 'localtime', 'start of day', '-4 days', '+9 hours', '+2 minutes'), 2, 0, 4, 3, 2,
  'Auftrag', 'Auftrag 3, Zeitplan 5', 'Fehler', NULL, 'Buchung abgewiesen: Konto 8400 ist nicht angelegt.',
  'Datei Kasse_Filiale2.csv, Zeile 18'),
 (datetime('now', 'localtime', 'start of day', '-1 days', '+6 hours', '+4 minutes'), 2, 0, 28, 6, 3,
  'Auftrag', 'Auftrag 6, Zeitplan 9', 'Information', NULL, '128 Belege übernommen.', 'Belegarten 1,3,5'),
 (datetime('now', 'localtime', 'start of day', '-1 days', '+10 hours', '+1 minutes'), 2, 0, 28, 6, 3,
  'Auftrag', 'Auftrag 6, Zeitplan 9', 'Warnung', NULL, 'Keine neuen Belege vorhanden.', ''),
 (datetime('now', 'localtime', 'start of day', '-1 days', '+7 hours', '+16 minutes'), 2, 0, 20, 8, 2,
  'Auftrag', 'Auftrag 8, Zeitplan 11', 'Information', NULL, '15 Dokumente übernommen.', ''),
 (datetime('now', 'localtime', 'start of day', '-2 days', '+7 hours', '+1 minutes'), 2, 0, 20, 8, 2,
  'Auftrag', 'Auftrag 8, Zeitplan 11', 'Fehler', NULL, 'Anmeldung am Archiv fehlgeschlagen.', 'Scandokument_K1.txt'),
 (datetime('now', 'localtime', 'start of day', '-3 days', '+10 hours', '+5 minutes'), 2, 0, 21, 9, 3,
  'Auftrag', 'Auftrag 9, Zeitplan 12', 'Fehler', NULL, '3 Belege ohne Schlagwort.', ''),
 (datetime('now', 'localtime', 'start of day', '-6 days', '+1 hours'), 2, 0, 99, 10, 4,
  'Auftrag', 'Auftrag 10, Zeitplan 13', 'Information', 'Artikelimport', '310 Datensätze in Tabelle Artikel importiert.',
  'artikel_10030.txt'),
 (datetime('now', 'localtime', 'start of day', '-35 days', '+4 hours', '+1 minutes'), 2, 0, 30, 12, 1,
  'Auftrag', 'Auftrag 12, Zeitplan 16', 'Warnung', NULL, 'Keine Daten aus Nivora.', '');
