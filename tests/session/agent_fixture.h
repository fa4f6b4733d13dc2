// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "session/connection.h"
#include "simulator/simulator.h"
#include "simulator/world/world.h"
#include "tests/session/session_fixture.h"

namespace session_tests {

/// A session with a simulated agent over TLS. At the end the agent must hold no unreleased
/// references and must have recorded no violations.
class AgentTest : public SessionTest {
protected:
    explicit AgentTest(simulator::Options options = {})
        : agent(std::move(options)) {}

    void TearDown() override {
        session::g_connection.reset();
        using Objects = std::vector<std::string>;
        EXPECT_THAT(agentGone ? Objects() : agent.liveObjects(), testing::IsEmpty());
        EXPECT_THAT(agent.violations(), testing::IsEmpty());
        EXPECT_EQ(agent.waitingInjections(), 0u);
    }

    void logIn() { session::connectToAgent(agent.address(), "demo", "demo", 1); }

    /// The login of `user` with a password, as in the agent's log.
    std::string loginText(const std::string& user) const {
        return "ClientConnection.login(\"" + agent.baseUrl() + "\", \"13.0.0.0\", \"" + user +
               "\", ***, 1)";
    }

    void stopAgent() {
        agent.stop();
        agentGone = true;
    }

    void setClientType(std::int32_t type) {
        agent.withWorld([type](simulator::World& world) { world.clientType = type; });
    }

    static constexpr const char* askKind = "ClientConnection.getTarnClientType()";
    static constexpr const char* logout = "ClientConnection.logout()";
    static constexpr const char* release = "ClientConnection.Release()";

    simulator::Simulator agent;
    /// The agent is unreachable, so nothing can be released.
    bool agentGone = false;
};

} // namespace session_tests
