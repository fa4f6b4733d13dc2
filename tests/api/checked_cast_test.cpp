// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/checked_cast.h"

#include <string>

#include "api/auto_releaser.h"
#include "api/backup_set.h"
#include "hessian/serialize_exception.h"
#include "tests/support/proxy_test.h"
#include "transport/invoke_exception.h"

namespace {

using namespace hessiancln;

constexpr char types[] = "c 01 00 m 00 05 'types' z";

class CheckedCastTest : public support::ProxyTest {
protected:
    /// The text of the exception that the cast throws.
    std::string refusal() const {
        try {
            checkedCast<Win32FS_BackupSet>(set);
        } catch (const invoke_exception& e) {
            return e.what();
        }
        return "nothing was raised";
    }

    const boost::shared_ptr<BackupSet> set = proxyAt<BackupSet>("here");
};

TEST_F(CheckedCastTest, TypesAreAskedOfTheAgent) {
    expect(types, "r 01 00 V S 00 09 'BackupSet' S 00 03 'Süd' z z");
    EXPECT_EQ(set->types(), (std::vector<std::string>{"BackupSet", "Süd"}));
}

TEST_F(CheckedCastTest, GivesAnotherProxyOfTheSameObject) {
    expect(types, "r 01 00 V S 00 09 'BackupSet' S 00 11 'Win32FS_BackupSet' z z");
    const auto narrower = checkedCast<Win32FS_BackupSet>(set);
    ASSERT_TRUE(narrower);
    EXPECT_NE(narrower, set);
    EXPECT_EQ(narrower->url(), "here");
    EXPECT_EQ(narrower->getDispatcher(), agent);
    expect("c 01 00 m 00 09 'setUseVSS' T z", "r 01 00 z");
    narrower->setUseVSS(true);
}

TEST_F(CheckedCastTest, SharesTheReleaserOfItsSource) {
    const auto received = receivedAt<BackupSet>("set");
    agent->expect("set", types, "r 01 00 V S 00 11 'Win32FS_BackupSet' z z");
    const auto narrower = checkedCast<Win32FS_BackupSet>(received);
    EXPECT_TRUE(narrower->getAutoReleaser());
    EXPECT_EQ(narrower->getAutoReleaser(), received->getAutoReleaser());
    agent->expectRelease("set");
}

TEST_F(CheckedCastTest, RefusesAnObjectOfAnotherType) {
    expect(types, "r 01 00 V S 00 09 'BackupSet' S 00 10 'UnixFS_BackupSet' z z");
    EXPECT_EQ(refusal(), "Bad cast from BackupSet: class is NOT of type Win32FS_BackupSet");
    expect("c 01 00 m 00 05 'getID' z", "r 01 00 I 00 00 00 07 z");
    EXPECT_EQ(set->getID(), 7);
}

TEST_F(CheckedCastTest, RefusesAnObjectWithoutTypes) {
    expect(types, "r 01 00 V z z");
    EXPECT_EQ(refusal(), "Bad cast from BackupSet: class is NOT of type Win32FS_BackupSet");
}

TEST_F(CheckedCastTest, TakesOnlyThePlainAndWholeName) {
    expect(types, "r 01 00 V S 00 20 'com.norvel.api.Win32FS_BackupSet' S 00 11 'win32fs_backupset'"
                  " S 00 12 'Win32FS_BackupSet2' S 00 0E 'Win32FS_Backup' S 00 00 z z");
    EXPECT_EQ(refusal(), "Bad cast from BackupSet: class is NOT of type Win32FS_BackupSet");
}

TEST_F(CheckedCastTest, PassesAFaultOn) {
    expect(types, "f S 00 07 'message' S 00 04 'gone' z");
    EXPECT_EQ(refusal(), "gone");
}

TEST_F(CheckedCastTest, PassesAMalformedReplyOn) {
    expect(types, "r 01 00 N z");
    EXPECT_THROW(checkedCast<Win32FS_BackupSet>(set), hessianser::serialize_exception);
}

} // namespace
