#pragma once

#include <QString>

// With --postgresql every scenario plays on a new database of its own on the PostgreSQL server
// that the environment names (PGHOST, PGPORT, PGUSER; the password from the usual sources),
// dropped again when the scenario ends. Without it, on a private SQLite database in memory.
class ScenarioServerDatabase {
  public:
    static void use(bool onServer);
    static bool inUse();

    // Creates the database; throws ScenarioError when the server cannot be reached.
    ScenarioServerDatabase();
    ~ScenarioServerDatabase();
    ScenarioServerDatabase(const ScenarioServerDatabase&) = delete;
    ScenarioServerDatabase& operator=(const ScenarioServerDatabase&) = delete;

    // The database's address for Database::open.
    QString address() const;

  private:
    QString name_;
};
