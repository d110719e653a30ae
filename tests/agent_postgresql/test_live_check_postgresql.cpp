#include <gtest/gtest.h>

#include "tests/agent/LiveCheck.h"
#include "tests/agent_postgresql/ServerTestDatabase.h"

// On a PostgreSQL server as on SQLite.
TEST(LiveCheckOnServer, TheProgramWorksWhileTheAgentWrites) {
    const ServerTestDatabase server;
    checkTheProgramWhileTheAgentWrites(server.address());
}
