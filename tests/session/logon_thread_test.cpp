// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The thread that runs the rounds of an integrated logon with this system's own operations, while
// the caller waits with a hook or gives up. Without Qt, for the thread sanitizer.
#include <atomic>
#include <memory>

#include "api/client_connection.h"
#include "session/integrated_logon.h"
#include "simulator/simulator.h"
#include "tests/support/forwarding_security_operations.h"
#include "tests/support/kerberos_realm.h"
#include "tests/support/scripted_hook.h"
#include "tests/support/signal.h"
#include "transport/invoke_exception.h"

namespace {

using hessiancln::AwaitedCall;
using hessiancln::ClientConnection;
using support::ScriptedHook;

/// The system's own operations; raises a signal when the logon has released them.
class ReleasedOperations final : public support::ForwardingSecurityOperations {
public:
    ReleasedOperations()
        : ForwardingSecurityOperations(*platform::securityOperations()) {}

    support::Signal released;

    void release(platform::SecurityHandle& credentials,
                 platform::SecurityHandle& context) override {
        ForwardingSecurityOperations::release(credentials, context);
        released.raise();
    }
};

class LogonThread : public testing::Test {
protected:
    static simulator::Options accepting(const std::string& keyTable) {
        simulator::Options options;
        options.guest = false;
        options.plain = true;
        options.acceptLogon = keyTable;
        return options;
    }

    bool logOn() {
        ClientConnection bootstrap(agent.baseUrl() + "/api", false, 0, "");
        return session::performIntegratedLogon(root, bootstrap, agent.baseUrl(), "13.0.0.0",
                                               operations);
    }

    support::KerberosRealm realm;
    simulator::Simulator agent{accepting(realm.keyTable())};
    ReleasedOperations operations;
    boost::shared_ptr<ClientConnection> root;
};

TEST_F(LogonThread, GivesItsTokensToTheCaller) {
    realm.getTicket();
    // Without patience, each round runs while the hook does.
    ScriptedHook hook([](AwaitedCall&) {}, std::chrono::milliseconds(0));
    const hessiancln::WaitHookInstallation installed(hook);
    ASSERT_TRUE(logOn());
    EXPECT_TRUE(root);
    EXPECT_GT(hook.waits, 0);
    EXPECT_TRUE(operations.released.wait());
}

TEST_F(LogonThread, OutlivesACallerWhoGivesUp) {
    realm.getTicket();
    realm.silenceKdc();
    ScriptedHook hook([](AwaitedCall& call) { call.giveUp("Enough of this"); });
    const hessiancln::WaitHookInstallation installed(hook);
    EXPECT_THROW(logOn(), hessiancln::invoke_exception);
    EXPECT_FALSE(root);
    realm.stopKdc();
    EXPECT_TRUE(operations.released.wait(std::chrono::seconds(60)));
}

} // namespace
