// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// What an integrated logon leaves in the memory that it frees.
#include <algorithm>
#include <string>
#include <string_view>

#include <boost/make_shared.hpp>

#include <gtest/gtest.h>

#include "api/client_connection.h"
#include "platform/security_context.h"
#include "session/integrated_logon.h"
#include "tests/support/freed_memory.h"
#include "transport/i_call_dispatcher.h"

namespace {

using platform::SecurityHandle;
using platform::SecurityStatus;
using support::FreedMemory;

constexpr std::string_view sent = "the token of the client";
constexpr std::string_view received = "the token of the agent!";

/// A system whose first round gives a token, and whose second completes the context without one.
class TwoRounds final : public platform::SecurityOperations {
public:
    SecurityStatus queryMaxTokenSize(std::uint32_t& size) override {
        size = 64;
        return platform::securityOk;
    }
    SecurityStatus acquireCredentials(SecurityHandle& credentials) override {
        credentials.lower = 1;
        return platform::securityOk;
    }
    SecurityStatus initializeContext(SecurityHandle&, SecurityHandle&, const std::string&,
                                     std::span<std::uint8_t> input, std::span<std::uint8_t> output,
                                     std::uint32_t& outputSize) override {
        if (input.empty()) {
            std::ranges::copy(sent, output.begin());
            outputSize = static_cast<std::uint32_t>(sent.size());
            return platform::securityContinueNeeded;
        }
        tookToken = std::equal(received.begin(), received.end(), input.begin());
        return platform::securityOk;
    }
    SecurityStatus completeToken(SecurityHandle&, std::span<std::uint8_t>) override {
        return platform::securityOk;
    }

    bool tookToken = false;
};

/// An agent that replies to everything with its token.
class Agent final : public hessiancln::ICallDispatcher {
public:
    Agent()
        : ICallDispatcher(0, "") {
        const auto text = [](std::string_view bytes) {
            return std::string{'S', '\0', static_cast<char>(bytes.size())} + std::string(bytes);
        };
        const std::string token =
            std::string{static_cast<char>(received.size()), '\0', '\0', '\0'} +
            std::string(received);
        const std::string type = "com.norvel.api.sspi_login_info";
        reply_ = std::string("r\x01\0Mt\0", 6) + static_cast<char>(type.size()) + type +
                 text("context") + std::string{'B', '\0', static_cast<char>(token.size())} + token +
                 text("user") + text("anna") + text("domain") + text("OFFICE") + text("conn") +
                 "Nzz";
    }

    std::string sendRequest(const std::string&, const std::string& request) override {
        hadToken = request.find(sent) != std::string::npos;
        return reply_;
    }

    bool hadToken = false;

private:
    std::string reply_;
};

class FreedByALogon : public testing::TestWithParam<std::string_view> {};

INSTANTIATE_TEST_SUITE_P(Each, FreedByALogon, testing::Values(sent, received),
                         [](const auto& test) {
                             return std::string(test.param == sent ? "Sent" : "Received");
                         });

TEST_P(FreedByALogon, MemoryHoldsNothingOfTheToken) {
    TwoRounds system;
    const auto agent = boost::make_shared<Agent>();
    hessiancln::ClientConnection bootstrap("https://a:1/api", false, 0, "");
    bootstrap.setDispatcher(agent);
    boost::shared_ptr<hessiancln::ClientConnection> root;
    const FreedMemory freed(GetParam());
    EXPECT_TRUE(
        session::performIntegratedLogon(root, bootstrap, "https://a:1", "13.0.0.0", system));
    EXPECT_EQ(freed.blocksWithSecret(), 0);
    EXPECT_TRUE(agent->hadToken);
    EXPECT_TRUE(system.tookToken);
}

} // namespace
