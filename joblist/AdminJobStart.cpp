// Starting a job now: the system checks that the job can run and hands it to the starter
// program, which runs it on its own.
#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "app/cProperties.h"
#include "common/ErrorExit.h"
#include "common/MessageBox.h"

namespace {

constexpr long kProgrammVerzeichnis = 41;
constexpr int kMinimiertMitFokus = 2;
const QString kStarter = QStringLiteral("ZPKyJobStart.exe");
const QString kCrLf = QStringLiteral("\r\n");

}  // namespace

void cAdminJob::mJobStartenExe(long& lJobId) {
    ErrorExit ex(QStringLiteral("mJobStartenExe"), kKlasse);
    try {
        QString sProgramm;
        {
            auto oCoreTools = services().newCoreTools ? services().newCoreTools() : nullptr;
            // The program directory ends in a separator of its own.
            sProgramm = required(oCoreTools).GetPfad(kProgrammVerzeichnis) + kStarter;
        }
        if (!required(services().fileSystem).FileExists(sProgramm)) {
            return;
        }

        if (lJobId == 0) {
            QString sName;
            mJobIdErmitteln(lJobId, sName);
        }

        QString sMeldung;
        if (lJobId == 0) {
            sMeldung = QStringLiteral("Es wurde kein Auftrag für die Ausführung ausgewählt.") +
                       kCrLf + QStringLiteral("Bitte wählen Sie einen Auftrag aus.");
        } else {
            const long lZeitplan = mlScheduleIdErm(lJobId);
            if (lZeitplan == 0) {
                sMeldung = QStringLiteral(
                               "Der Auftrag kann nicht ausgeführt werden. Es wurde "
                               "kein Zeitplan gefunden.") +
                           kCrLf +
                           QStringLiteral(
                               "Bitte legen Sie einen Zeitplan für die automatische "
                               "Ausführung an.");
            } else if (lZeitplan > 0) {
                const QStringList argumente{
                    QStringLiteral("/JOBID=") + QString::number(lJobId),
                    QStringLiteral("/MITID=") + QString::number(required(moProperties).plMitId)};
                if (!required(services().shell).Start(sProgramm, argumente, kMinimiertMitFokus)) {
                    throw RaisedError(ErrNumber::Internal,
                                      QStringLiteral("Das Programm konnte nicht gestartet "
                                                     "werden: ") +
                                          sProgramm);
                }
            }
        }

        if (!sMeldung.isEmpty()) {
            mlMsgBox(sMeldung, MsgStyle::Information, QString(), QString(), 0);
        }
    } catch (...) {
        ex.fail();
    }
}

long cAdminJob::mlScheduleIdErm(long lJobId) {
    ErrorExit ex(QStringLiteral("mlScheduleIdErm"), kKlasse);
    try {
        if (lJobId <= 0) {
            return 0;
        }
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        long lId = 0;
        if (oTL->OpenQuery(QStringLiteral(" select * from tAutoJobSchedule where idAutoJob = ") +
                               QString::number(lJobId) + QStringLiteral(" AND Aktiviert = 1"),
                           2) >= 1) {
            lId = oTL->ReadLong(QStringLiteral("idAutoJobSchedule"));
        }
        oTL->Close();
        oTL->Disconnect();
        return lId;
    } catch (...) {
        ex.fail();
    }
    return 0;
}
