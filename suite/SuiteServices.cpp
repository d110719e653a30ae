#include "suite/SuiteServices.h"

#include <QDir>
#include <QFileInfo>

#include "suite/BookingLogViewerStandIn.h"
#include "suite/ChangeJournal.h"
#include "suite/CoreStandIns.h"
#include "suite/CoreTexte.h"
#include "suite/CoreTools.h"
#include "suite/OptionFileReaderText.h"
#include "suite/PostgresAddress.h"
#include "suite/StaffClient.h"
#include "suite/TraceLog.h"

Services makeSuiteServices(std::shared_ptr<SuiteConfig> config, std::shared_ptr<Database> db,
                           std::shared_ptr<PlatformUi> ui, std::shared_ptr<IClock> clock) {
    Services s;
    s.clock = std::move(clock);
    s.ui = std::move(ui);
    if (db) {
        s.newRecordset = db->recordsetFactory();
    }
    s.newCoreTools = [config] { return std::make_unique<SuiteCoreTools>(config); };
    s.newCoreError = [] { return std::make_unique<SuiteCoreError>(); };
    s.newCoreConvert = [] { return std::make_unique<SuiteCoreConvert>(); };
    s.newCoreHelp = [] { return std::make_unique<SuiteCoreHelp>(); };
    s.newLog = [config] { return std::make_unique<SuiteTraceLog>(config); };
    s.newMitarbeiter = [] { return std::make_unique<SuiteMitarbeiter>(); };
    s.newMandant = [] { return std::make_unique<SuiteMandant>(); };
    s.newOptionFileReader = [] { return std::make_unique<TextOptionFileReader>(); };
    s.newBookingLogViewer = [] { return std::make_unique<SuiteBookingLogViewer>(); };
    s.coreGlobal = std::make_shared<SuiteCoreGlobal>(config);
    s.coreTexte = std::make_shared<SuiteCoreTexte>();
    return s;
}

std::shared_ptr<Database> openSuiteDatabase(const SuiteConfig& config,
                                            std::shared_ptr<IClock> clock) {
    const bool onServer = PostgresAddress::isAddress(config.databasePath);
    if (config.databasePath != QLatin1String(":memory:") && !onServer) {
        QDir().mkpath(QFileInfo(config.databasePath).absolutePath());
    }
    auto db = Database::open(config.databasePath, std::move(clock), config.busyTimeoutMs);
    if (!db->isEmpty()) {
        db->upgradeSchema();
    } else if (onServer) {
        // An office's shared database starts with the schema alone: its jobs are its own.
        db->applySchema();
    } else {
        db->applySchema();
        // The demo's jobs work in folders below the data root, made ready for them.
        const QString dataRoot = config.paths.value(83);
        if (dataRoot.isEmpty()) {
            db->applyDemoData();
        } else {
            for (const QString& folder : db->applyDemoData(dataRoot + QStringLiteral("/demo"))) {
                QDir().mkpath(folder);
            }
        }
    }
    db->runScript(ChangeJournal::settingStatement(ChangeJournal::kMitarbeiter,
                                                  QString::number(config.mitId)));
    return db;
}
