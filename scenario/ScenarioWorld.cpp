#include "scenario/ScenarioWorld.h"

#include <QDir>

#include "common/ErrObject.h"
#include "common/ErrorReport.h"
#include "program/ProgramServices.h"
#include "scenario/ScenarioError.h"
#include "suite/SqlBackend.h"

namespace {

const QDateTime kStart(QDate(2026, 11, 22), QTime(10, 0));

QString sqlText(const QString& text) {
    return QLatin1Char('\'') + QString(text).replace(u'\'', QStringLiteral("''")) +
           QLatin1Char('\'');
}

// The error state of the classic runtime lives in the process; each world starts clean.
void clearErrorState() {
    Err().Clear();
    Core_gFehlerZurueck();
    Err().Clear();
}

}  // namespace

ScenarioWorld::ScenarioWorld(ScenarioPrompter& prompter,
                             std::shared_ptr<HeadlessWindowFactory> windows)
    : dir_(QDir::tempPath() + QStringLiteral("/autojobverw-scenario-XXXXXX")),
      clock_(std::make_shared<FixedClock>(kStart)),
      config_(std::make_shared<SuiteConfig>()),
      platform_(std::make_shared<ScenarioPlatform>(prompter, events_)),
      host_(std::make_shared<HostState>()),
      frame_(std::make_unique<ScenarioFrame>(*host_)),
      dokument_(std::make_shared<ScenarioDokumentDaten>()),
      windows_(std::move(windows)) {
    if (!dir_.isValid()) {
        scenarioFail(QStringLiteral("no temporary directory: %1").arg(dir_.errorString()));
    }
    clearErrorState();
    config_->installationKind = 0;
    config_->paths.insert(41, root() + QStringLiteral("/bin/"));
    config_->paths.insert(83, root() + QStringLiteral("/data"));
    config_->paths.insert(6, root() + QStringLiteral("/suite/"));
    config_->databasePath = QStringLiteral(":memory:");
    if (ScenarioServerDatabase::inUse()) {
        server_ = std::make_unique<ScenarioServerDatabase>();
        config_->databasePath = server_->address();
    }

    try {
        db_ = Database::open(config_->databasePath, clock_);
        db_->applySchema();
    } catch (const RaisedError& e) {
        scenarioFail(QStringLiteral("the database cannot be set up: %1").arg(e.err().Description));
    }

    // The program's own composition; the scenario controls the clock, the platform's
    // dialogs, the shell (a recorder), the window kit with the booking log viewer's window
    // (a recorder) and, as host, the base object.
    Services s = composeProgramServices({config_, db_, clock_, platform_, windows_,
                                         std::make_shared<ScenarioBookingLogDisplay>(events_)});
    s.shell = std::make_shared<ScenarioShell>(events_);
    s.newBasisAbruf = [state = host_, frame = frame_.get()]() -> std::unique_ptr<ZPKyBasisAbruf> {
        return std::make_unique<ScenarioBasis>(state, *frame);
    };
    scope_ = std::make_unique<ScopedServices>(std::move(s));

    setText(1001, QStringLiteral("Suite"));
    setText(1024, QStringLiteral("Daten"));
    setText(1025, QStringLiteral("Programme"));
    setText(1228, QStringLiteral("JobAgent"));
    setText(1236, QStringLiteral("Kesto"));
    setStaff(1, QStringLiteral("Anna Admin"));
}

ScenarioWorld::~ScenarioWorld() {
    scope_.reset();
    clearErrorState();
}

QString ScenarioWorld::root() const {
    return dir_.path();
}

QString ScenarioWorld::expand(QString text) const {
    return text.replace(QStringLiteral("$ROOT"), root());
}

void ScenarioWorld::setText(long id, const QString& text) {
    runSql(QStringLiteral("DELETE FROM tSuiteText WHERE TextId = %1").arg(id));
    runSql(QStringLiteral("INSERT INTO tSuiteText (TextId, Text) VALUES (%1, %2)")
               .arg(id)
               .arg(sqlText(text)));
}

void ScenarioWorld::setStaff(long id, const QString& name) {
    runSql(QStringLiteral("DELETE FROM tMitarbeiter WHERE MitId = %1").arg(id));
    runSql(QStringLiteral("INSERT INTO tMitarbeiter (MitId, Name) VALUES (%1, %2)")
               .arg(id)
               .arg(sqlText(name)));
}

void ScenarioWorld::setClient(long id, long number, bool office) {
    runSql(QStringLiteral("DELETE FROM tMandant WHERE ManId = %1").arg(id));
    runSql(QStringLiteral("INSERT INTO tMandant (ManId, ManNr, Kanzlei) VALUES (%1, %2, %3)")
               .arg(id)
               .arg(number)
               .arg(office ? 1 : 0));
}

void ScenarioWorld::runSql(const QString& statement) {
    try {
        db_->runScript(db_->backend().translate(statement, clock_->now()));
    } catch (const RaisedError& e) {
        scenarioFail(QStringLiteral("the statement failed: %1").arg(e.err().Description));
    }
}
