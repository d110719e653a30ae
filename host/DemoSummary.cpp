#include "host/DemoSummary.h"

#include "common/ErrorExit.h"

namespace {

const QString kKlasse = QStringLiteral("modHost");

long countOf(const QString& table) {
    return withErrorExit<long>(QStringLiteral("countOf"), kKlasse, 0, [&](ErrorExit& ex) {
        auto oTL = ex.create(services().newRecordset, QStringLiteral("hdata.dll"),
                             QStringLiteral("Set oTL = New hdata.CRecordset"));
        oTL->Connect();
        oTL->OpenQuery(QStringLiteral("select count(*) as Anzahl from ") + table, 0);
        const long n = oTL->ReadLong(QStringLiteral("Anzahl"));
        oTL->Close();
        oTL->Disconnect();
        return n;
    });
}

QString jobsByType() {
    return withErrorExit<QString>(QStringLiteral("jobsByType"), kKlasse, {}, [](ErrorExit& ex) {
        auto oTL = ex.create(services().newRecordset, QStringLiteral("hdata.dll"),
                             QStringLiteral("Set oTL = New hdata.CRecordset"));
        oTL->Connect();
        QString text;
        const long n =
            oTL->OpenQuery(QStringLiteral("select j.DatenArt, v.Auftragsart, count(*) as Anzahl "
                                          "from V_ZPK_Applications_System_AutoJob v "
                                          "join tAutoJobJob j on j.idAutoJob = v.JobId "
                                          "group by j.DatenArt, v.Auftragsart order by j.DatenArt"),
                           0);
        bool more = n >= 1;
        while (more) {
            text += QStringLiteral("  %1 %2: %3\n")
                        .arg(oTL->ReadLong(QStringLiteral("DatenArt")), 2)
                        .arg(oTL->ReadText(QStringLiteral("Auftragsart")))
                        .arg(oTL->ReadLong(QStringLiteral("Anzahl")));
            more = oTL->Move(CRecordset::MoveNext);
        }
        oTL->Close();
        oTL->Disconnect();
        return text;
    });
}

}  // namespace

QString demoSummary() {
    QString s;
    s += QStringLiteral("Aufträge: %1\n").arg(countOf(QStringLiteral("tAutoJobJob")));
    s += jobsByType();
    s += QStringLiteral("Zeitpläne: %1\n").arg(countOf(QStringLiteral("tAutoJobSchedule")));
    s += QStringLiteral("Ausführungen: %1\n").arg(countOf(QStringLiteral("tAutoJobVerlauf")));
    s += QStringLiteral("Logeinträge: %1\n").arg(countOf(QStringLiteral("SYS_JobAgentLogDaten")));
    return s;
}
