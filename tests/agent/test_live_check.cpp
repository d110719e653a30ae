#include <gtest/gtest.h>

#include "tests/agent/AgentTestDatabase.h"
#include "tests/agent/LiveCheck.h"

TEST(LiveCheck, TheProgramWorksWhileTheAgentWrites) {
    AgentTestDatabase data;
    checkTheProgramWhileTheAgentWrites(data.path);
}
