#include "app/JournalAnlass.h"

#include "common/Recordset.h"
#include "suite/ChangeJournal.h"

JournalAnlass::JournalAnlass(CRecordset& oTL, const QString& sAnlass) : moTL(oTL) {
    moTL.Execute(ChangeJournal::settingStatement(ChangeJournal::kAnlass, sAnlass));
}

JournalAnlass::~JournalAnlass() {
    try {
        moTL.Execute(ChangeJournal::settingStatement(ChangeJournal::kAnlass, QString()));
    } catch (...) {
        // A connection lost meanwhile was opened anew without the setting.
    }
}
