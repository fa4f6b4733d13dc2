// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <stdexcept>
#include <string>

#include "api/auto_releaser.h"
#include "api/checked_cast.h"
#include "api/client_connection.h"
#include "hessian/serialize_exception.h"
#include "tests/support/proxy_test.h"
#include "transport/invoke_exception.h"

namespace {

using namespace hessiancln;

constexpr char release[] = "c 01 00 m 00 07 'Release' z";

/// Checks that the agent receives one release for each reference it handed out, when the last proxy
/// is destroyed.
class ReleaseTest : public support::ProxyTest {
protected:
    void expectBackupSet(std::string_view reference) const {
        expect("c 01 00 m 00 0A 'backup_set' I 00 00 00 01 z",
               "r 01 00 " + std::string(reference) + " z");
    }
    void expectTypesOfSet() const {
        agent->expect("set", "c 01 00 m 00 05 'types' z",
                      "r 01 00 V S 00 11 'Win32FS_BackupSet' z z");
    }
    boost::shared_ptr<Win32FS_BackupSet> cast(const boost::shared_ptr<BackupSet>& set) const {
        expectTypesOfSet();
        return checkedCast<Win32FS_BackupSet>(set);
    }

    const boost::shared_ptr<ClientConnection> root = proxyAt<ClientConnection>("here");
};

TEST_F(ReleaseTest, TheEntryPointIsNeverReleased) {
    EXPECT_FALSE(root->getAutoReleaser());
    expect("c 01 00 m 00 11 'getTarnClientType' z", "r 01 00 I 00 00 00 01 z");
    root->getTarnClientType();
    ClientConnection(agent, "entry", false, 0, "");
}

TEST_F(ReleaseTest, AReferenceIsReleasedWhenItsProxyGoes) {
    expectBackupSet("r t 00 18 'com.norvel.api.BackupSet' S 00 03 'set'");
    auto set = root->backup_set(1);
    EXPECT_TRUE(set->getAutoReleaser());
    EXPECT_EQ(agent->left(), 0u);
    agent->expectRelease("set");
    set.reset();
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(ReleaseTest, AReferenceOfANarrowerClassIsReleasedOnce) {
    expectBackupSet("r t 00 20 'com.norvel.api.Win32FS_BackupSet' S 00 03 'set'");
    auto set = root->backup_set(1);
    agent->expectRelease("set");
}

TEST_F(ReleaseTest, AReferenceWithoutTypeIsReleasedToo) {
    expectBackupSet("r S 00 03 'set'");
    auto set = root->backup_set(1);
    agent->expectRelease("set");
}

TEST_F(ReleaseTest, OneResultThatNobodyKeepsIsReleasedAtOnce) {
    expectBackupSet("r t 00 18 'com.norvel.api.BackupSet' S 00 03 'set'");
    agent->expectRelease("set");
    root->backup_set(1);
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(ReleaseTest, ANullReferenceIsNotReleased) {
    expectBackupSet("N");
    EXPECT_FALSE(root->backup_set(1));
}

TEST_F(ReleaseTest, CopiesOfThePointerAreOneProxy) {
    expectBackupSet("r t 00 18 'com.norvel.api.BackupSet' S 00 03 'set'");
    auto set = root->backup_set(1);
    auto copy = set;
    set.reset();
    agent->expectRelease("set");
    copy.reset();
}

TEST_F(ReleaseTest, EachReferenceToTheSameObjectIsReleased) {
    expectBackupSet("r t 00 18 'com.norvel.api.BackupSet' S 00 03 'set'");
    expectBackupSet("r t 00 18 'com.norvel.api.BackupSet' S 00 03 'set'");
    auto first = root->backup_set(1);
    auto second = root->backup_set(1);
    EXPECT_NE(first->getAutoReleaser(), second->getAutoReleaser());
    agent->expectRelease("set");
    first.reset();
    EXPECT_EQ(agent->left(), 0u);
    agent->expectRelease("set");
    second.reset();
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(ReleaseTest, EachReferenceOfAListIsReleased) {
    agent->expect("set", "c 01 00 m 00 05 'items' z",
                  "r 01 00 V r t 00 1C 'com.norvel.api.BackupSetItem' S 00 01 'a' r t 00 1C "
                  "'com.norvel.api.BackupSetItem' S 00 01 'b' z z");
    auto items = proxyAt<BackupSet>("set")->items();
    agent->expectRelease("b");
    items.pop_back();
    EXPECT_EQ(agent->left(), 0u);
    agent->expectRelease("a");
    items.pop_back();
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(ReleaseTest, AReferenceInARecordIsReleased) {
    expect("c 01 00 m 00 0A 'sspi_login' S 00 00 S 00 00 B 00 00 z",
           "r 01 00 M t 00 1E 'com.norvel.api.sspi_login_info' S 00 04 'conn' r t 00 1F "
           "'com.norvel.api.ClientConnection' S 00 01 's' z z");
    auto answer = root->sspi_login("", "", {});
    agent->expectRelease("s");
    answer.conn.reset();
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(ReleaseTest, ACastThatOutlivesItsSourceReleasesOnce) {
    auto set = receivedAt<BackupSet>("set");
    auto narrower = cast(set);
    set.reset();
    agent->expectRelease("set");
    narrower.reset();
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(ReleaseTest, ASourceThatOutlivesItsCastReleasesOnce) {
    auto set = receivedAt<BackupSet>("set");
    auto narrower = cast(set);
    narrower.reset();
    agent->expectRelease("set");
    set.reset();
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(ReleaseTest, ManyCastsReleaseOnce) {
    auto set = receivedAt<BackupSet>("set");
    auto first = cast(set);
    auto second = cast(set);
    first.reset();
    set.reset();
    agent->expectRelease("set");
    second.reset();
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(ReleaseTest, ACastIsWidenedWithoutAnotherRelease) {
    auto set = receivedAt<BackupSet>("set");
    boost::shared_ptr<BackupSet> widened = cast(set);
    set.reset();
    agent->expectRelease("set");
    widened.reset();
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(ReleaseTest, ACastThatFailsReleasesNothing) {
    auto set = receivedAt<BackupSet>("set");
    agent->expect("set", "c 01 00 m 00 05 'types' z", "r 01 00 V z z");
    EXPECT_THROW(checkedCast<Win32FS_BackupSet>(set), invoke_exception);
    agent->expectRelease("set");
}

TEST_F(ReleaseTest, ACastOfTheEntryPointsKindIsNotReleased) {
    EXPECT_FALSE(cast(proxyAt<BackupSet>("set"))->getAutoReleaser());
}

TEST_F(ReleaseTest, OutlivesTheParent) {
    auto parent = receivedAt<ClientConnection>("here");
    expectBackupSet("r t 00 18 'com.norvel.api.BackupSet' S 00 03 'set'");
    auto set = parent->backup_set(1);
    agent->expectRelease("here");
    parent.reset();
    agent->expectRelease("set");
    set.reset();
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(ReleaseTest, GoesWhereTheLastProxyOfTheObjectWasBound) {
    const auto other = boost::make_shared<support::ScriptedDispatcher>();
    auto set = receivedAt<BackupSet>("set");
    auto narrower = cast(set);
    narrower->setDispatcher(other);
    set.reset();
    other->expectRelease("set");
    narrower.reset();
    EXPECT_EQ(other->left(), 0u);
}

TEST_F(ReleaseTest, RaisesNothingOnADeadTransport) {
    auto set = receivedAt<BackupSet>("set");
    agent->expectThenRaise("set", release, [] { throw invoke_exception("dead"); });
    EXPECT_NO_THROW(set.reset());
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(ReleaseTest, SwallowsAnyStandardException) {
    auto set = receivedAt<BackupSet>("set");
    agent->expectThenRaise("set", release, [] { throw std::bad_alloc(); });
    EXPECT_NO_THROW(set.reset());
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(ReleaseTest, SwallowsAFault) {
    auto set = receivedAt<BackupSet>("set");
    agent->expect("set", release, "f S 00 07 'message' S 00 02 'no' z");
    EXPECT_NO_THROW(set.reset());
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(ReleaseTest, SwallowsAMalformedReply) {
    auto set = receivedAt<BackupSet>("set");
    agent->expect("set", release, "'<html>'");
    EXPECT_NO_THROW(set.reset());
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(ReleaseTest, ByHandReportsCodeAndMessageOfAFault) {
    const auto set = proxyAt<BackupSet>("set");
    agent->expect(
        "set", release,
        "r 01 00 f S 00 04 'code' S 00 0C 'NoSuchObject' S 00 07 'message' S 00 03 'weg' z z");
    try {
        set->Release();
        FAIL();
    } catch (const invoke_exception& e) {
        EXPECT_STREQ(e.what(), "Fault: NoSuchObject (weg)");
    }
}

TEST_F(ReleaseTest, ByHandReportsAFaultThatSaysNothing) {
    const auto set = proxyAt<BackupSet>("set");
    agent->expect("set", release, "f z");
    try {
        set->Release();
        FAIL();
    } catch (const invoke_exception& e) {
        EXPECT_STREQ(e.what(), "Fault: <Code could not be parsed> (<Message could not be parsed>)");
    }
}

TEST_F(ReleaseTest, ByHandIsSentOnce) {
    const auto set = proxyAt<BackupSet>("set");
    agent->expectRelease("set");
    set->Release();
    set->Release();
}

TEST_F(ReleaseTest, ByHandIsSentAgainAfterAFailure) {
    const auto set = proxyAt<BackupSet>("set");
    agent->expect("set", release, "f z");
    EXPECT_THROW(set->Release(), invoke_exception);
    agent->expect("set", release, "r 01 00 I 00 00 00 01 z");
    EXPECT_THROW(set->Release(), hessianser::serialize_exception);
    agent->expect("set", release, "r 01 00 N z");
    set->Release();
    set->Release();
}

} // namespace
