#include "agent/AgentWriter.h"

#include "agent/PostgresAgentWriter.h"
#include "agent/SqliteAgentWriter.h"
#include "suite/Database.h"

std::unique_ptr<AgentWriter> AgentWriter::forDatabase(const Database& database) {
    if (database.onServer()) {
        return std::make_unique<PostgresAgentWriter>(database);
    }
    return std::make_unique<SqliteAgentWriter>(database);
}
