// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/integrated_logon.h"

#include <stdexcept>

#include <boost/make_shared.hpp>

#include <gtest/gtest.h>

#include "api/client_connection.h"
#include "hessian/serialize_exception.h"
#include "tests/support/scripted_dispatcher.h"
#include "tests/support/scripted_hook.h"
#include "tests/support/scripted_security_operations.h"
#include "tests/support/security_operations_override.h"
#include "tests/support/signal.h"
#include "transport/call_passage.h"
#include "transport/invoke_exception.h"

namespace {

using hessiancln::AwaitedCall;
using hessiancln::CallPassage;
using hessiancln::ClientConnection;
using support::ScriptedDispatcher;
using support::ScriptedHook;
using support::ScriptedSecurityOperations;

constexpr auto more = platform::securityContinueNeeded;
constexpr auto complete = platform::securityOk;
constexpr platform::SecurityStatus refused = -1;

const std::string noReference = "N";

/// A reference to the session object with a one-letter name.
std::string reference(const std::string& letter) {
    return "r t 00 1F 'com.norvel.api.ClientConnection' S 00 0D 'https://a:1/" + letter + "'";
}

/// A call with the framed token, which is 6 bytes long and in the notation of `bytes`.
std::string step(const std::string& framedToken) {
    return "c 01 00 m 00 0A 'sspi_login' S 00 0B 'https://a:1' S 00 08 '13.0.0.0' B 00 06 " +
           framedToken + " z";
}

/// A reply with the chunk `context` and the reference `conn`.
std::string answer(const std::string& context, const std::string& conn) {
    return "r 01 00 M t 00 1E 'com.norvel.api.sspi_login_info' S 00 07 'context' " + context +
           " S 00 04 'user' S 00 04 'anna' S 00 06 'domain' S 00 06 'OFFICE' S 00 04 'conn' " +
           conn + " z z";
}

/// Frames of the tokens AA AA and BB BB, and a context with the token CC.
const std::string frameA = "02 00 00 00 AA AA";
const std::string frameB = "02 00 00 00 BB BB";
const std::string contextC = "B 00 05 01 00 00 00 CC";

class IntegratedLogon : public testing::Test {
protected:
    IntegratedLogon() { bootstrap.setDispatcher(agent); }

    bool logOn() {
        return session::performIntegratedLogon(connection, bootstrap, "https://a:1", "13.0.0.0",
                                               system);
    }

    void expectStep(const std::string& frame, const std::string& reply) {
        agent->expect("https://a:1/api", step(frame), reply);
    }

    boost::shared_ptr<ScriptedDispatcher> agent = boost::make_shared<ScriptedDispatcher>();
    ScriptedSecurityOperations system;
    ClientConnection bootstrap{"https://a:1/api", false, 0, ""};
    // The previous connection, recognisable by its URL.
    boost::shared_ptr<ClientConnection> connection =
        boost::make_shared<ClientConnection>("https://old", false, 0u, "");
};

TEST_F(IntegratedLogon, OneRoundGivesTheSession) {
    system.rounds = {{complete, {0xAA, 0xAA}}};
    expectStep(frameA, answer(contextC, reference("s")));
    ASSERT_TRUE(logOn());
    ASSERT_TRUE(connection);
    EXPECT_EQ(connection->url(), "https://a:1/s");
    EXPECT_EQ(connection->getDispatcher(), agent);
    EXPECT_EQ(system.asked[0].targetName, "OstrandBakSvc/localhost");
    agent->expectRelease("https://a:1/s");
    connection.reset();
}

TEST_F(IntegratedLogon, CarriesTheAgentsTokenIntoTheNextRound) {
    system.rounds = {{more, {0xAA, 0xAA}}, {complete, {0xBB, 0xBB}}};
    expectStep(frameA, answer("B 00 06 02 00 00 00 CC DD", noReference));
    expectStep(frameB, answer(contextC, reference("s")));
    ASSERT_TRUE(logOn());
    EXPECT_EQ(system.asked[1].input[0], 0xCC);
    EXPECT_EQ(system.asked[1].input[1], 0xDD);
    agent->expectRelease("https://a:1/s");
    connection.reset();
}

TEST_F(IntegratedLogon, FirstRoundThatFailsSendsNothing) {
    system.rounds = {{refused, {0xAA, 0xAA}}};
    EXPECT_FALSE(logOn());
    EXPECT_EQ(connection->url(), "https://old");
}

TEST_F(IntegratedLogon, EmptyTokenOfAnIncompleteContextEndsItWithoutASession) {
    system.rounds = {{more, {}}};
    EXPECT_FALSE(logOn());
    EXPECT_EQ(connection->url(), "https://old");
}

TEST_F(IntegratedLogon, EmptyTokenOfACompleteContextKeepsThePreviousAnswer) {
    system.rounds = {{more, {0xAA, 0xAA}}, {complete, {}}};
    expectStep(frameA, answer(contextC, reference("s")));
    ASSERT_TRUE(logOn());
    EXPECT_EQ(connection->url(), "https://a:1/s");
    agent->expectRelease("https://a:1/s");
    connection.reset();
}

TEST_F(IntegratedLogon, FirstRoundThatCompletesWithAnEmptyTokenGivesNothing) {
    system.rounds = {{complete, {}}};
    EXPECT_TRUE(logOn());
    EXPECT_FALSE(connection);
}

TEST_F(IntegratedLogon, LastAnswerCountsEvenIfItGivesNothing) {
    system.rounds = {{more, {0xAA, 0xAA}}, {complete, {0xBB, 0xBB}}};
    expectStep(frameA, answer(contextC, reference("s")));
    expectStep(frameB, answer(contextC, noReference));
    agent->expectRelease("https://a:1/s");
    EXPECT_TRUE(logOn());
    EXPECT_FALSE(connection);
}

TEST_F(IntegratedLogon, LaterRoundThatFailsReleasesWhatTheAgentGave) {
    system.rounds = {{more, {0xAA, 0xAA}}, {refused, {0xBB, 0xBB}}};
    expectStep(frameA, answer(contextC, reference("s")));
    agent->expectRelease("https://a:1/s");
    EXPECT_FALSE(logOn());
    EXPECT_EQ(connection->url(), "https://old");
}

TEST_F(IntegratedLogon, LaterEmptyTokenOfAnIncompleteContextReleasesWhatTheAgentGave) {
    system.rounds = {{more, {0xAA, 0xAA}}, {more, {}}};
    expectStep(frameA, answer(contextC, reference("s")));
    agent->expectRelease("https://a:1/s");
    EXPECT_FALSE(logOn());
    EXPECT_EQ(connection->url(), "https://old");
}

TEST_F(IntegratedLogon, EachOlderAnswerIsReleasedOnce) {
    system.rounds = {{more, {0xAA, 0xAA}}, {more, {0xBB, 0xBB}}, {complete, {0xAA, 0xAA}}};
    expectStep(frameA, answer(contextC, reference("1")));
    expectStep(frameB, answer(contextC, reference("2")));
    agent->expectRelease("https://a:1/1");
    expectStep(frameA, answer(contextC, reference("3")));
    agent->expectRelease("https://a:1/2");
    ASSERT_TRUE(logOn());
    EXPECT_EQ(connection->url(), "https://a:1/3");
    agent->expectRelease("https://a:1/3");
    connection.reset();
}

TEST_F(IntegratedLogon, HasNoLimitOfRounds) {
    for (int i = 0; i < 200; ++i) {
        system.rounds.push_back({more, {0xAA, 0xAA}});
        expectStep(frameA, answer(contextC, noReference));
    }
    system.rounds.push_back({complete, {0xBB, 0xBB}});
    expectStep(frameB, answer(contextC, noReference));
    EXPECT_TRUE(logOn());
    EXPECT_EQ(system.asked.size(), 201u);
    EXPECT_EQ(system.operations.size(), 203u) << "Credentials are acquired once";
}

TEST_F(IntegratedLogon, FaultPassesThrough) {
    system.rounds = {{complete, {0xAA, 0xAA}}};
    expectStep(frameA, "r 01 00 f S 00 04 'code' S 00 01 '7' S 00 07 'message' "
                       "S 00 0C 'Not admitted' z");
    try {
        logOn();
        FAIL() << "A fault has to raise";
    } catch (const hessiancln::invoke_exception& failure) {
        EXPECT_STREQ(failure.what(), "Not admitted");
    }
    EXPECT_EQ(connection->url(), "https://old");
}

TEST_F(IntegratedLogon, FaultOfALaterStepReleasesWhatTheAgentGave) {
    system.rounds = {{more, {0xAA, 0xAA}}, {complete, {0xBB, 0xBB}}};
    expectStep(frameA, answer(contextC, reference("s")));
    expectStep(frameB, "f S 00 07 'message' S 00 02 'No' z");
    agent->expectRelease("https://a:1/s");
    EXPECT_THROW(logOn(), hessiancln::invoke_exception);
    EXPECT_EQ(connection->url(), "https://old");
}

TEST_F(IntegratedLogon, FailureOfTheTransportPassesThrough) {
    system.rounds = {{complete, {0xAA, 0xAA}}};
    agent->expectThenRaise("https://a:1/api", step(frameA),
                           [] { throw hessiancln::invoke_exception("Connection lost"); });
    EXPECT_THROW(logOn(), hessiancln::invoke_exception);
    EXPECT_EQ(connection->url(), "https://old");
}

TEST_F(IntegratedLogon, MalformedAnswerPassesThrough) {
    system.rounds = {{complete, {0xAA, 0xAA}}};
    expectStep(frameA, "r 01 00 M t 00 1E 'com.norvel.api.sspi_login_info' "
                       "S 00 05 'other' S 00 00 z z");
    try {
        logOn();
        FAIL() << "An unknown key has to raise";
    } catch (const hessianser::serialize_exception& failure) {
        EXPECT_STREQ(failure.what(), "Unknown map field type");
    }
    EXPECT_EQ(connection->url(), "https://old");
}

TEST_F(IntegratedLogon, AnswerWithoutATokenEndsAnIncompleteContext) {
    for (const char* context : {"B 00 00", "B 00 03 01 00 00", "B 00 04 00 00 00 00"}) {
        system.rounds = {{more, {0xAA, 0xAA}}, {complete, {0xBB, 0xBB}}};
        system.asked.clear();
        expectStep(frameA, answer(context, reference("s")));
        agent->expectRelease("https://a:1/s");
        EXPECT_FALSE(logOn()) << context;
        EXPECT_EQ(system.asked.size(), 1u) << context;
        EXPECT_EQ(connection->url(), "https://old");
    }
}

TEST_F(IntegratedLogon, CompleteContextNeedsNoFurtherToken) {
    for (const char* context : {"B 00 00", "B 00 03 01 00 00"}) {
        system.rounds = {{complete, {0xAA, 0xAA}}};
        expectStep(frameA, answer(context, noReference));
        EXPECT_TRUE(logOn()) << context;
    }
}

TEST_F(IntegratedLogon, ContextThatPromisesTooMuchReadsAsWhatIsThere) {
    system.rounds = {{more, {0xAA, 0xAA}}, {complete, {0xBB, 0xBB}}};
    expectStep(frameA, answer("B 00 06 FF FF FF FF CC DD", noReference));
    expectStep(frameB, answer(contextC, noReference));
    EXPECT_TRUE(logOn());
    EXPECT_EQ(system.asked[1].input, (ScriptedSecurityOperations::Bytes{
                                         0xCC, 0xDD, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

/// The system's logon service answers only when the test wants it to.
class SlowOperations : public ScriptedSecurityOperations {
public:
    support::Signal answer;
    support::Signal released;

    platform::SecurityStatus
    initializeContext(platform::SecurityHandle& credentials, platform::SecurityHandle& context,
                      const std::string& targetName, std::span<std::uint8_t> input,
                      std::span<std::uint8_t> output, std::uint32_t& outputSize) override {
        EXPECT_TRUE(answer.wait());
        return ScriptedSecurityOperations::initializeContext(credentials, context, targetName,
                                                             input, output, outputSize);
    }
    void release(platform::SecurityHandle&, platform::SecurityHandle&) override {
        released.raise();
    }
};

class SlowIntegratedLogon : public IntegratedLogon {
protected:
    bool logOnSlowly(const ScriptedHook::Work& work) {
        slow.rounds = {{complete, {0xAA, 0xAA}}};
        ScriptedHook hook([&](AwaitedCall& call) {
            EXPECT_EQ(call.awaited(), hessiancln::Awaited::logonService);
            EXPECT_TRUE(CallPassage::underWay());
            work(call);
        });
        const hessiancln::WaitHookInstallation installed(hook);
        const bool done =
            session::performIntegratedLogon(connection, bootstrap, "https://a:1", "13.0.0.0", slow);
        EXPECT_EQ(hook.waits, 1);
        return done;
    }

    SlowOperations slow;
};

TEST_F(SlowIntegratedLogon, WaitsWithTheHook) {
    expectStep(frameA, answer(contextC, reference("s")));
    ASSERT_TRUE(logOnSlowly([this](AwaitedCall&) { slow.answer.raise(); }));
    EXPECT_EQ(connection->url(), "https://a:1/s");
    agent->expectRelease("https://a:1/s");
    connection.reset();
    EXPECT_TRUE(slow.released.wait());
}

TEST_F(SlowIntegratedLogon, IsLeftToItsThreadByAUserWhoGivesUp) {
    try {
        logOnSlowly([](AwaitedCall& call) { call.giveUp("Enough of this"); });
        FAIL() << "A logon that was given up has to raise";
    } catch (const hessiancln::invoke_exception& failure) {
        EXPECT_STREQ(failure.what(), "Enough of this");
    }
    EXPECT_FALSE(CallPassage::underWay());
    EXPECT_EQ(connection->url(), "https://old");
    slow.answer.raise();
    EXPECT_TRUE(slow.released.wait());
}

TEST(IntegratedLogonOffer, FollowsTheOperationsInUse) {
    ScriptedSecurityOperations system;
    {
        const support::SecurityOperationsOverride here(&system);
        EXPECT_TRUE(session::integratedLogonAvailable());
    }
    {
        const support::SecurityOperationsOverride nowhere(nullptr);
        EXPECT_FALSE(session::integratedLogonAvailable());
    }
}

} // namespace
