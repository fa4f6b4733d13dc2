// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <chrono>
#include <future>

#include "api/client_connection.h"
#include "tests/session/agent_fixture.h"
#include "tests/support/bytes.h"
#include "tests/support/system/failures.h"
#include "transport/call_passage.h"
#include "transport/invoke_exception.h"

// The agent's calls and their order, from the login to the last release.
namespace {

using hessiancln::invoke_exception;
using session_tests::textOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

/// Long enough for another thread to act in the meantime, on a busy machine too.
constexpr auto longDelay = std::chrono::seconds(1);

template <class Result>
bool isUnderWay(const std::future<Result>& work) {
    return work.wait_for(std::chrono::seconds(0)) == std::future_status::timeout;
}

class SessionLifetime : public session_tests::AgentTest {
protected:
    void logInQuietly() {
        logIn();
        agent.clearCallLog();
    }

    /// The id of an existing backup set.
    std::int32_t anySet() {
        std::int32_t id = 0;
        agent.withWorld([&id](simulator::World& world) { id = world.sets().front()->info.id; });
        return id;
    }
};

TEST_F(SessionLifetime, DisconnectLogsOutThenReleases) {
    logInQuietly();
    session::disconnectFromAgent();
    EXPECT_THAT(agent.callTexts(), ElementsAre(logout, release));
    EXPECT_FALSE(session::connectedToAgent());
    EXPECT_EQ(session::currentUser(), "demo") << "The last user stays";
}

TEST_F(SessionLifetime, DisconnectWithoutASessionDoesNothing) {
    session::disconnectFromAgent();
    EXPECT_THAT(agent.callTexts(), IsEmpty());
    logInQuietly();
    session::disconnectFromAgent();
    session::disconnectFromAgent();
    EXPECT_THAT(agent.callTexts(), ElementsAre(logout, release));
    session::g_currentUser = untouchedUser;
    expectNoSession();
}

TEST_F(SessionLifetime, DisconnectSwallowsAFaultAndStillReleases) {
    logInQuietly();
    agent.inject("logout", simulator::Fault{"Not now"});
    session::disconnectFromAgent();
    EXPECT_THAT(agent.callTexts(), ElementsAre(logout, release));
    EXPECT_FALSE(session::connectedToAgent());
}

TEST_F(SessionLifetime, DisconnectSwallowsNonsenseAndStillReleases) {
    logInQuietly();
    agent.inject("logout", simulator::RawReply{support::bytes("r 01 00 I 00 00 00 01 z")});
    session::disconnectFromAgent();
    EXPECT_THAT(agent.callTexts(), ElementsAre(logout, release));
}

TEST_F(SessionLifetime, CopyOutlivesTheDisconnect) {
    logInQuietly();
    auto copy = session::getConnection();
    session::disconnectFromAgent();
    EXPECT_THAT(agent.callTexts(), ElementsAre(logout));
    copy.reset();
    EXPECT_THAT(agent.callTexts(), ElementsAre(logout, release));
}

TEST_F(SessionLifetime, ObjectsOfTheSessionAreReleasedOnceEach) {
    logInQuietly();
    const std::int32_t id = anySet();
    const std::string askSet = "ClientConnection.backup_set(" + std::to_string(id) + ")";
    auto first = session::getConnection()->backup_set(id);
    auto second = session::getConnection()->backup_set(id);
    EXPECT_EQ(agent.liveObjects().size(), 3u);
    first.reset();
    session::disconnectFromAgent();
    second.reset();
    EXPECT_THAT(agent.callTexts(), ElementsAre(askSet, askSet, EndsWith("BackupSet.Release()"),
                                               logout, release, EndsWith("BackupSet.Release()")));
    EXPECT_THAT(agent.liveObjects(), IsEmpty());
}

TEST_F(SessionLifetime, SecondLoginDropsTheFirstSessionWithoutALogout) {
    logInQuietly();
    logIn();
    EXPECT_THAT(agent.callTexts(), ElementsAre(release, askKind, loginText("demo")));
    EXPECT_EQ(agent.liveObjects().size(), 1u);
}

TEST_F(SessionLifetime, SecondLoginThatFailsLeavesNoSession) {
    logInQuietly();
    EXPECT_THROW(session::connectToAgent(agent.address(), "demo", "guess", 1), invoke_exception);
    EXPECT_THAT(agent.callTexts(), ElementsAre(release, askKind, loginText("demo")));
    EXPECT_FALSE(session::connectedToAgent());
    EXPECT_EQ(session::currentUser(), "demo");
}

TEST_F(SessionLifetime, SecondLoginToADeadAgentLeavesNoSession) {
    logInQuietly();
    session::getConnection()->getTarnClientInfo();
    stopAgent();
    EXPECT_EQ(textOf<invoke_exception>([this] { logIn(); }),
              "Failed to connect to '127.0.0.1' on port " + std::to_string(agent.port()) +
                  ". O/S error " + support::failures::refused().reported());
    EXPECT_FALSE(session::connectedToAgent());
}

TEST_F(SessionLifetime, DisconnectFromAnAgentThatDiedBeforeTheFirstFrame) {
    logIn();
    stopAgent();
    session::disconnectFromAgent();
    EXPECT_FALSE(session::connectedToAgent());
}

TEST_F(SessionLifetime, DisconnectFromAnAgentThatDiedUnderTheStream) {
    logIn();
    session::getConnection()->getTarnClientInfo();
    stopAgent();
    session::disconnectFromAgent();
    EXPECT_FALSE(session::connectedToAgent());
}

TEST_F(SessionLifetime, DisconnectOverAStreamThatWasCut) {
    logIn();
    agent.inject("getTarnClientInfo", simulator::CutBefore{});
    EXPECT_THROW(session::getConnection()->getTarnClientInfo(), invoke_exception);
    agentGone = true;
    session::disconnectFromAgent();
    EXPECT_FALSE(session::connectedToAgent());
}

TEST_F(SessionLifetime, LoginWhileTheMutexIsHeldMakesOthersWait) {
    agent.inject("login", simulator::Delay{longDelay});
    auto login = std::async(std::launch::async, [this] { logIn(); });
    ASSERT_TRUE(agent.waitForCall("login"));
    ASSERT_TRUE(isUnderWay(login));
    // Without the wait this would throw the exception of a missing session.
    EXPECT_TRUE(session::getConnection());
    login.get();
}

TEST_F(SessionLifetime, DisconnectLeavesACallUnderWayItsObject) {
    logInQuietly();
    agent.inject("getTarnClientInfo", simulator::Delay{longDelay});
    auto call = std::async(std::launch::async,
                           [] { return session::getConnection()->getTarnClientInfo().size(); });
    ASSERT_TRUE(agent.waitForCall("getTarnClientInfo"));
    session::disconnectFromAgent();
    EXPECT_TRUE(isUnderWay(call));
    EXPECT_GT(call.get(), 0u);
    EXPECT_THAT(agent.callTexts(),
                ElementsAre("ClientConnection.getTarnClientInfo()", logout, release));
}

TEST(SessionInsideACall, IsAnErrorOfThisProgram) {
    const hessiancln::CallPassage call;
#ifdef NDEBUG
    EXPECT_THROW(session::connectToAgent("127.0.0.1:1", "demo", "demo", 1),
                 hessiancln::invoke_exception);
    EXPECT_NO_THROW(session::disconnectFromAgent());
    EXPECT_THROW(session::getConnection(), hessiancln::invoke_exception);
    EXPECT_FALSE(session::connectedToAgent());
#else
    const char* const assertion = "underWay|a call inside a call";
    EXPECT_DEATH(session::connectToAgent("127.0.0.1:1", "demo", "demo", 1), assertion);
    EXPECT_DEATH(session::disconnectFromAgent(), assertion);
    EXPECT_DEATH(session::getConnection(), assertion);
    EXPECT_DEATH(session::connectedToAgent(), assertion);
#endif
}

} // namespace
