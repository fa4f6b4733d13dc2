// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <string>

#include "api/backup_set_credentials.h"
#include "api/backup_set_item.h"
#include "api/checked_cast.h"
#include "api/data_browser_with_set_creation.h"
#include "api/schedule.h"
#include "tests/api/received.h"

namespace {

using namespace hessiancln;

/// A class reached by a cast, the root of its family, and what `types` returns for the object.
template <class Narrower, class Root>
struct Pair {
    using NarrowerClass = Narrower;
    using RootClass = Root;
};

template <class P>
class FamilyCasts : public ReceivingTest {};

struct SetCreation : Pair<DataBrowserWithSetCreation, DataSourceBrowser> {
    static constexpr char types[] =
        "S 00 11 'DataSourceBrowser' S 00 1A 'DataBrowserWithSetCreation'";
    static constexpr char refusal[] = "Bad cast from DataSourceBrowser: class is NOT of type "
                                      "DataBrowserWithSetCreation";
};
struct RegexExclusion : Pair<BackupSetRegexExclusion, BackupSetItem> {
    static constexpr char types[] = "S 00 0D 'BackupSetItem' S 00 17 'BackupSetRegexExclusion'";
    static constexpr char refusal[] =
        "Bad cast from BackupSetItem: class is NOT of type BackupSetRegexExclusion";
};
struct Windows : Pair<Win32FS_Generic_BackupSetCredentials, BackupSetCredentials> {
    static constexpr char types[] = "S 00 14 'BackupSetCredentials' "
                                    "S 00 24 'Win32FS_Generic_BackupSetCredentials'";
    static constexpr char refusal[] = "Bad cast from BackupSetCredentials: class is NOT of type "
                                      "Win32FS_Generic_BackupSetCredentials";
};
struct Unix : Pair<UnixFS_Generic_BackupSetCredentials, BackupSetCredentials> {
    static constexpr char types[] = "S 00 14 'BackupSetCredentials' "
                                    "S 00 23 'UnixFS_Generic_BackupSetCredentials'";
    static constexpr char refusal[] = "Bad cast from BackupSetCredentials: class is NOT of type "
                                      "UnixFS_Generic_BackupSetCredentials";
};
struct SSH : Pair<UnixFS_SSH_BackupSetCredentials, BackupSetCredentials> {
    static constexpr char types[] = "S 00 14 'BackupSetCredentials' "
                                    "S 00 1F 'UnixFS_SSH_BackupSetCredentials'";
    static constexpr char refusal[] = "Bad cast from BackupSetCredentials: class is NOT of type "
                                      "UnixFS_SSH_BackupSetCredentials";
};
struct Weekly : Pair<WeeklyScheduleDetail, ScheduleDetail> {
    static constexpr char types[] = "S 00 0E 'ScheduleDetail' S 00 14 'WeeklyScheduleDetail'";
    static constexpr char refusal[] =
        "Bad cast from ScheduleDetail: class is NOT of type WeeklyScheduleDetail";
};
struct Monthly : Pair<MonthlyScheduleDetail, ScheduleDetail> {
    static constexpr char types[] = "S 00 0E 'ScheduleDetail' S 00 15 'MonthlyScheduleDetail'";
    static constexpr char refusal[] =
        "Bad cast from ScheduleDetail: class is NOT of type MonthlyScheduleDetail";
};

using Pairs = testing::Types<SetCreation, RegexExclusion, Windows, Unix, SSH, Weekly, Monthly>;
TYPED_TEST_SUITE(FamilyCasts, Pairs);

TYPED_TEST(FamilyCasts, GiveTheNarrowerClass) {
    const auto source = this->template proxyAt<typename TypeParam::RootClass>("here");
    this->expect("c 01 00 m 00 05 'types' z",
                 std::string("r 01 00 V ") + TypeParam::types + " z z");
    const auto narrower = checkedCast<typename TypeParam::NarrowerClass>(source);
    ASSERT_TRUE(narrower);
    EXPECT_EQ(narrower->url(), "here");
    EXPECT_EQ(narrower->getDispatcher(), this->agent);
}

TYPED_TEST(FamilyCasts, NameBothClassesInTheRefusal) {
    const auto source = this->template proxyAt<typename TypeParam::RootClass>("here");
    this->expect("c 01 00 m 00 05 'types' z",
                 "r 01 00 V S 00 11 'BackupSetFileItem' S 00 0D 'SomethingElse' z z");
    this->expectFault([&] { checkedCast<typename TypeParam::NarrowerClass>(source); },
                      TypeParam::refusal);
}

class CastResultTest : public ReceivingTest {};

TEST_F(CastResultTest, IsWrittenUnderTheNameOfTheFamily) {
    expect("c 01 00 m 00 05 'types' z", "r 01 00 V S 00 15 'MonthlyScheduleDetail' z z");
    const auto monthly = checkedCast<MonthlyScheduleDetail>(proxyAt<ScheduleDetail>("here"));
    agent->expect(
        "s",
        "c 01 00 m 00 0C 'removeDetail' r t 00 1D 'com.norvel.api.ScheduleDetail' S 00 04 'here' z",
        "r 01 00 z");
    proxyAt<Schedule>("s")->removeDetail(monthly);
}

TEST_F(CastResultTest, AnSSHObjectNeedNotBeAGenericUnixOne) {
    expect("c 01 00 m 00 05 'types' z", "r 01 00 V S 00 14 'BackupSetCredentials' "
                                        "S 00 1F 'UnixFS_SSH_BackupSetCredentials' z z");
    expectFault(
        [this] {
            checkedCast<UnixFS_Generic_BackupSetCredentials>(proxyAt<BackupSetCredentials>("here"));
        },
        "Bad cast from BackupSetCredentials: class is NOT of type "
        "UnixFS_Generic_BackupSetCredentials");
}

} // namespace
