#pragma once

#include <QTemporaryDir>
#include <memory>

#include "common/Clock.h"
#include "common/Services.h"
#include "headless/HeadlessWindow.h"
#include "scenario/ScenarioEvents.h"
#include "scenario/ScenarioHost.h"
#include "scenario/ScenarioPlatform.h"
#include "scenario/ScenarioServerDatabase.h"
#include "suite/Database.h"
#include "suite/SuiteConfig.h"

// Everything one scenario plays in, fresh for each file: a new database with the schema (in
// memory, or on a PostgreSQL server: ScenarioServerDatabase.h), a fixed clock, a temporary
// directory ($ROOT), the suite's stand-ins with the scenario defaults, the recording platform and
// shell, the host's objects and the window kit. While the world exists the registry is its own; the
// former one comes back after.
//
// The suite's texts, staff members and clients live where the suite keeps them, in its own
// tables (tSuiteText, tMitarbeiter, tMandant): the text, staff and client objects read them
// there, and so do the views of the job list and the log data. Those three tables hold the
// defaults (texts 1001, 1024, 1025, 1228, 1236 and staff member 1); the system's own tables
// start without rows.
class ScenarioWorld {
  public:
    ScenarioWorld(ScenarioPrompter& prompter, std::shared_ptr<HeadlessWindowFactory> windows);
    ~ScenarioWorld();
    ScenarioWorld(const ScenarioWorld&) = delete;
    ScenarioWorld& operator=(const ScenarioWorld&) = delete;

    // The temporary directory, without a separator at the end.
    QString root() const;
    // Replaces $ROOT in a text.
    QString expand(QString text) const;

    FixedClock& clock() { return *clock_; }
    SuiteConfig& config() { return *config_; }
    Database& database() { return *db_; }
    ScenarioEvents& events() { return events_; }
    HostState& host() { return *host_; }
    std::shared_ptr<HostState> hostState() const { return host_; }
    ScenarioDokumentDaten& dokument() { return *dokument_; }
    std::shared_ptr<ScenarioDokumentDaten> dokumentDaten() const { return dokument_; }
    HeadlessWindowFactory& windows() { return *windows_; }
    ScenarioPlatform& platform() { return *platform_; }

    // The suite's own tables that its text, staff and client objects read.
    void setText(long id, const QString& text);
    void setStaff(long id, const QString& name);
    void setClient(long id, long number, bool office);

    // Runs one statement of the scenario, in the dialect the system writes; throws ScenarioError
    // with the database's message when it fails.
    void runSql(const QString& statement);

  private:
    QTemporaryDir dir_;
    std::shared_ptr<FixedClock> clock_;
    std::shared_ptr<SuiteConfig> config_;
    // Outlives the connection: the database is dropped after it is closed.
    std::unique_ptr<ScenarioServerDatabase> server_;
    std::shared_ptr<Database> db_;
    ScenarioEvents events_;
    std::shared_ptr<ScenarioPlatform> platform_;
    std::shared_ptr<HostState> host_;
    std::unique_ptr<ScenarioFrame> frame_;
    std::shared_ptr<ScenarioDokumentDaten> dokument_;
    std::shared_ptr<HeadlessWindowFactory> windows_;
    std::unique_ptr<ScopedServices> scope_;
};
