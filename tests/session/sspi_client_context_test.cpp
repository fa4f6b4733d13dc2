// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/sspi_client_context.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/scripted_security_operations.h"

namespace {

using session::SspiClientContext;
using support::ScriptedSecurityOperations;
using testing::ElementsAre;
using Bytes = ScriptedSecurityOperations::Bytes;

constexpr platform::SecurityStatus refused = -2146893044;

class SspiContext : public testing::Test {
protected:
    bool runRound() { return context.runRound("service/host"); }

    Bytes outToken() const {
        const auto token = context.outToken();
        return Bytes(token.begin(), token.end());
    }

    ScriptedSecurityOperations system;
    SspiClientContext context{system};
};

TEST_F(SspiContext, HasNothingBeforeTheFirstRound) {
    EXPECT_EQ(outToken(), Bytes());
    EXPECT_FALSE(context.done());
    EXPECT_TRUE(system.operations.empty());
}

TEST_F(SspiContext, FirstRoundAcquiresCredentialsAndPassesNeitherInputNorContext) {
    system.rounds = {{platform::securityContinueNeeded, {1, 2, 3}}};
    ASSERT_TRUE(runRound());
    EXPECT_THAT(system.operations, ElementsAre("query", "acquire", "round"));
    EXPECT_EQ(system.asked[0].targetName, "service/host");
    EXPECT_FALSE(system.asked[0].withContext);
    EXPECT_EQ(system.asked[0].input, Bytes());
    EXPECT_EQ(system.asked[0].outputRoom, 16u);
    EXPECT_EQ(outToken(), (Bytes{1, 2, 3}));
}

TEST_F(SspiContext, LaterRoundPassesContextAndToken) {
    system.rounds = {{platform::securityContinueNeeded, {1}}, {platform::securityOk, {2}}};
    ASSERT_TRUE(runRound());
    context.setInToken(Bytes{7, 8});
    ASSERT_TRUE(runRound());
    EXPECT_THAT(system.operations, ElementsAre("query", "acquire", "round", "round"));
    EXPECT_TRUE(system.asked[1].withContext);
    EXPECT_EQ(system.asked[1].input, (Bytes{7, 8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}))
        << "The input has the size of its buffer, and nothing follows the token";
    EXPECT_EQ(outToken(), Bytes{2});
}

TEST_F(SspiContext, NothingOfAnOlderTokenStandsBehindAShorterOne) {
    system.maxTokenSize = 4;
    system.rounds = {{platform::securityContinueNeeded, {1}},
                     {platform::securityContinueNeeded, {1}},
                     {platform::securityOk, {1}}};
    ASSERT_TRUE(runRound());
    context.setInToken(Bytes{9, 9, 9, 9});
    ASSERT_TRUE(runRound());
    context.setInToken(Bytes{5});
    ASSERT_TRUE(runRound());
    EXPECT_EQ(system.asked[2].input, (Bytes{5, 0, 0, 0}));
}

TEST_F(SspiContext, TakesATokenLargerThanThePackagePromised) {
    system.maxTokenSize = 2;
    system.rounds = {{platform::securityContinueNeeded, {1}}, {platform::securityOk, {1}}};
    ASSERT_TRUE(runRound());
    context.setInToken(Bytes{1, 2, 3, 4, 5});
    ASSERT_TRUE(runRound());
    EXPECT_EQ(system.asked[1].input, (Bytes{1, 2, 3, 4, 5}));
    EXPECT_EQ(system.asked[1].outputRoom, 2u);
}

TEST_F(SspiContext, OutTokenNeverReachesBehindItsRoom) {
    system.maxTokenSize = 2;
    system.rounds = {{platform::securityOk, {1, 2, 3}}};
    ASSERT_TRUE(runRound());
    EXPECT_EQ(outToken(), (Bytes{1, 2}));
}

TEST_F(SspiContext, OutTokenShrinksWithTheNextRound) {
    system.rounds = {{platform::securityContinueNeeded, {1, 2, 3}}, {platform::securityOk, {}}};
    ASSERT_TRUE(runRound());
    context.setInToken(Bytes{7});
    ASSERT_TRUE(runRound());
    EXPECT_EQ(outToken(), Bytes());
}

TEST_F(SspiContext, UnknownPackageFailsTheRoundAndIsRecorded) {
    system.queryStatus = refused;
    EXPECT_FALSE(runRound());
    EXPECT_THAT(system.operations, ElementsAre("query"));
    EXPECT_EQ(context.failedStatus(), refused);
    EXPECT_EQ(context.failedOperation(), "QuerySecurityPackageInfo");
    EXPECT_FALSE(context.done());
}

TEST_F(SspiContext, MissingCredentialsFailTheRoundWithoutARecord) {
    system.acquireStatus = refused;
    EXPECT_FALSE(runRound());
    EXPECT_THAT(system.operations, ElementsAre("query", "acquire"));
    EXPECT_EQ(context.failedOperation(), "");
    EXPECT_EQ(context.failedStatus(), platform::securityOk);
}

TEST_F(SspiContext, FailedRoundIsRecorded) {
    system.rounds = {{refused, {1}}};
    EXPECT_FALSE(runRound());
    EXPECT_EQ(context.failedStatus(), refused);
    EXPECT_EQ(context.failedOperation(), "InitializeSecurityContext");
    EXPECT_EQ(outToken(), Bytes());
    EXPECT_FALSE(context.done());
}

TEST_F(SspiContext, FailedCompletionIsRecorded) {
    system.rounds = {{platform::securityCompleteNeeded, {1}, refused}};
    EXPECT_FALSE(runRound());
    EXPECT_THAT(system.operations, ElementsAre("query", "acquire", "round", "complete"));
    EXPECT_EQ(context.failedStatus(), refused);
    EXPECT_EQ(context.failedOperation(), "CompleteAuthToken");
    EXPECT_FALSE(context.done());
}

TEST_F(SspiContext, CompletionIsGivenTheTokenThatWasWritten) {
    system.rounds = {{platform::securityCompleteNeeded, {1, 2, 3}}};
    ASSERT_TRUE(runRound());
    EXPECT_THAT(system.completed, ElementsAre(Bytes{1, 2, 3}));
}

struct Outcome {
    platform::SecurityStatus status;
    platform::SecurityStatus completeStatus;
    bool completes;
    bool done;
};

class SspiOutcome : public testing::TestWithParam<Outcome> {};

TEST_P(SspiOutcome, FollowsFromTheStatus) {
    const Outcome& outcome = GetParam();
    ScriptedSecurityOperations system;
    system.rounds = {{outcome.status, {1}, outcome.completeStatus}};
    SspiClientContext context(system);
    ASSERT_TRUE(context.runRound("service/host"));
    EXPECT_EQ(system.completed.size(), outcome.completes ? 1u : 0u);
    EXPECT_EQ(context.done(), outcome.done);
}

// The result of a completion replaces the round's status.
INSTANTIATE_TEST_SUITE_P(
    Statuses, SspiOutcome,
    testing::Values(Outcome{0, 0, false, true}, Outcome{0x90312, 0, false, false},
                    Outcome{0x90313, 0, true, true}, Outcome{0x90314, 0, true, true},
                    Outcome{0x90314, 0x90312, true, false}, Outcome{0x90313, 0x90314, true, false},
                    Outcome{0x90320, 0, false, true}));

} // namespace
