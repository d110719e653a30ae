#include "suite/StaffClient.h"

#include "common/ErrorExit.h"
#include "suite/CoreStandIns.h"

namespace {

std::unique_ptr<CRecordset> newRecordset(ErrorExit& ex) {
    return ex.create(services().newRecordset, QStringLiteral("hdata.dll"),
                     QStringLiteral("Set oTL = New hdata.CRecordset"));
}

}  // namespace

void SuiteMitarbeiter::SetId(long id) {
    id_ = id;
}

void SuiteMitarbeiter::Lesen() {
    found_ = false;
    name_.clear();
    ErrorExit ex(QStringLiteral("Lesen"), QStringLiteral("OIMitarbeiterClass"));
    try {
        auto oTL = newRecordset(ex);
        oTL->Connect();
        if (oTL->OpenQuery(QStringLiteral("select Name from tMitarbeiter where MitId = ") +
                               QString::number(id_),
                           0) >= 1) {
            found_ = true;
            name_ = oTL->ReadText(QStringLiteral("Name"));
        }
        oTL->Close();
        oTL->Disconnect();
    } catch (...) {
        raiseOn(ex);
    }
}

bool SuiteMitarbeiter::KeinDatensatz() {
    return !found_;
}

QString SuiteMitarbeiter::Anzeigename() {
    return name_;
}

void SuiteMitarbeiter::Schliessen() {
    found_ = false;
    name_.clear();
}

QString SuiteMitarbeiter::FormatSqlDate(const QDateTime& value, long /*mode*/) {
    QDateTime moment = value;
    if (!moment.date().isValid()) {
        moment = zeroDate();
    } else if (!moment.time().isValid()) {
        moment = QDateTime(moment.date(), QTime(0, 0));
    }
    return QLatin1Char('\'') + moment.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) +
           QLatin1Char('\'');
}

void SuiteMandant::SetId(long id) {
    id_ = id;
}

void SuiteMandant::Lesen() {
    Schliessen();
    ErrorExit ex(QStringLiteral("Lesen"), QStringLiteral("OIMandantClass"));
    try {
        auto oTL = newRecordset(ex);
        oTL->Connect();
        if (oTL->OpenQuery(
                QStringLiteral("select ManId, ManNr, Kanzlei from tMandant where ManId = ") +
                    QString::number(id_),
                0) >= 1) {
            foundId_ = oTL->ReadLong(QStringLiteral("ManId"));
            manNr_ = oTL->ReadLong(QStringLiteral("ManNr"));
            kanzlei_ = oTL->ReadLong(QStringLiteral("Kanzlei")) != 0;
        }
        oTL->Close();
        oTL->Disconnect();
    } catch (...) {
        raiseOn(ex);
    }
}

long SuiteMandant::GetId() {
    return foundId_;
}

long SuiteMandant::ManNr() {
    return manNr_;
}

bool SuiteMandant::IstKanzlei() {
    return kanzlei_;
}

void SuiteMandant::Schliessen() {
    foundId_ = 0;
    manNr_ = 0;
    kanzlei_ = false;
}
