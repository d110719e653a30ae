#pragma once

#include <QString>

// The values the composed column Zusatzinfo of a job carries, by job type:
// 4, 17, 18, 28 the staff member for the import options; 30 the dealer data key (1 to 3);
// 99 staff member, import script and text file selection, joined by "|"; 5, 20, 21 nothing.
struct Zusatzinfo {
    long lMitarbeiterId = 0;
    long lHaendlerSchluessel = 0;
    QString sSkript;
    QString sTextdateien;  // itself separated by "?"
};

// Splits the stored text. A number is taken as the leading number of the trimmed text (0 when
// there is none); for type 99 missing fields stay empty and a fourth field is ignored.
Zusatzinfo zusatzinfoLesen(long lDatenArt, const QString& sZusatzinfo);

// Composes the text to store.
QString zusatzinfoSchreiben(long lDatenArt, const Zusatzinfo& werte);

// The text as the editor reads it: for types 4, 17, 18, 28 and 99 an empty text takes the
// staff id of the row's last editor, so that older rows show him as the staff member.
QString zusatzinfoMitVorgabe(long lDatenArt, const QString& sZusatzinfo, long lPsIdMitarbeiter);
