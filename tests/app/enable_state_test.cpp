// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "app/enable_state.h"

namespace {

using app::EnableInputs;
using app::enableState;

/// A set that allows every action: the base of the inputs in the tests below.
EnableInputs freeSet() {
    EnableInputs in;
    in.connected = true;
    in.setSelected = true;
    in.setInSync = true;
    in.setHasItems = true;
    in.setHasBackedUpData = true;
    return in;
}

struct Row {
    const char* object;
    bool app::EnableState::*on;
    /// The condition for being enabled, in terms of the inputs.
    bool (*expected)(const EnableInputs& in);
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.object;
}

bool whenConnected(const EnableInputs& in) {
    return in.connected;
}
bool whenNotManaged(const EnableInputs& in) {
    return !in.centrallyManaged;
}

const Row rows[] = {
    {"menu_Backup_Set", &app::EnableState::menuBackupSet, whenConnected},
    {"menu_Configuration", &app::EnableState::menuConfiguration, whenConnected},
    {"actionAdmin", &app::EnableState::actionAdmin, whenConnected},
    {"actionLogout", &app::EnableState::actionLogout, whenConnected},
    {"buttonEventLog", &app::EnableState::buttonEventLog, whenConnected},
    {"dateTimeFrom", &app::EnableState::dateTimeFrom, whenConnected},
    {"dateTimeTo", &app::EnableState::dateTimeTo, whenConnected},
    {"actionLogin", &app::EnableState::actionLogin,
     [](const EnableInputs& in) { return !in.connected; }},
    {"actionNew_Backup_Set", &app::EnableState::actionNewBackupSet,
     [](const EnableInputs& in) { return in.connected && !in.centrallyManaged; }},
    {"actionBackup_Now", &app::EnableState::actionBackupNow,
     [](const EnableInputs& in) {
         if (!in.connected || !in.setSelected || in.activityRunsOnSet)
             return false;
         if (!in.setInSync || !in.setHasItems)
             return false;
         return in.centrallyManaged ? in.setCreatedByPolicy : true;
     }},
    {"actionRestore", &app::EnableState::actionRestore,
     [](const EnableInputs& in) {
         if (!in.connected || !in.setSelected || in.activityRunsOnSet)
             return false;
         return in.setInSync && in.setHasBackedUpData;
     }},
    {"actionDeleteFromOnline", &app::EnableState::actionDeleteFromOnline,
     [](const EnableInputs& in) {
         if (!in.connected || !in.setSelected || in.activityRunsOnSet || !in.setInSync)
             return false;
         return in.centrallyManaged ? !in.setCreatedByPolicy : true;
     }},
    {"actionSynchronize", &app::EnableState::actionSynchronize,
     [](const EnableInputs& in) {
         return in.connected && in.setSelected && !in.activityRunsOnSet;
     }},
    {"buttonStop", &app::EnableState::buttonStop,
     [](const EnableInputs& in) { return in.connected && in.activitySelected; }},
    {"pageProperties", &app::EnableState::pageProperties,
     [](const EnableInputs& in) { return in.connected && in.setSelected; }},
    {"btnItems", &app::EnableState::btnItems, whenNotManaged},
    {"btnSchedule", &app::EnableState::btnSchedule, whenNotManaged},
    {"btnRetention", &app::EnableState::btnRetention, whenNotManaged},
    {"actionTFASettings", &app::EnableState::actionTFASettings,
     [](const EnableInputs& in) { return in.twoFactorEnabled; }},
};

/// Inputs number 0 to 1023: each bit of the number is one input.
EnableInputs inputsOf(unsigned bits) {
    EnableInputs in;
    bool EnableInputs::*const members[] = {
        &EnableInputs::connected,         &EnableInputs::activitySelected,
        &EnableInputs::setSelected,       &EnableInputs::setInSync,
        &EnableInputs::setHasItems,       &EnableInputs::setCreatedByPolicy,
        &EnableInputs::activityRunsOnSet, &EnableInputs::setHasBackedUpData,
        &EnableInputs::centrallyManaged,  &EnableInputs::twoFactorEnabled};
    for (auto member : members) {
        in.*member = bits & 1;
        bits >>= 1;
    }
    return in;
}

class EnableTable : public testing::TestWithParam<Row> {};

TEST_P(EnableTable, HoldsForAllInputs) {
    const Row& row = GetParam();
    for (unsigned bits = 0; bits < 1024; ++bits) {
        const EnableInputs in = inputsOf(bits);
        ASSERT_EQ(enableState(in).*row.on, row.expected(in)) << row.object << ", inputs " << bits;
    }
}

INSTANTIATE_TEST_SUITE_P(Objects, EnableTable, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.object); });

TEST(EnableState, AFreeSetAllowsEverythingButStop) {
    const app::EnableState on = enableState(freeSet());
    EXPECT_TRUE(on.actionBackupNow);
    EXPECT_TRUE(on.actionRestore);
    EXPECT_TRUE(on.actionDeleteFromOnline);
    EXPECT_TRUE(on.actionSynchronize);
    EXPECT_FALSE(on.buttonStop);
    EXPECT_FALSE(on.actionLogin);
}

TEST(EnableState, UnderCentralManagementASetOfThePolicyCanOnlyBeBackedUp) {
    EnableInputs in = freeSet();
    in.centrallyManaged = true;
    in.setCreatedByPolicy = true;
    EXPECT_TRUE(enableState(in).actionBackupNow);
    EXPECT_FALSE(enableState(in).actionDeleteFromOnline);
}

TEST(EnableState, UnderCentralManagementAnotherSetCanOnlyBeDeleted) {
    EnableInputs in = freeSet();
    in.centrallyManaged = true;
    EXPECT_FALSE(enableState(in).actionBackupNow);
    EXPECT_TRUE(enableState(in).actionDeleteFromOnline);
}

TEST(EnableState, TwoFactorSettingsStayEnabledWithoutASession) {
    EnableInputs in;
    in.twoFactorEnabled = true;
    EXPECT_TRUE(enableState(in).actionTFASettings);
    EXPECT_FALSE(enableState(in).menuConfiguration);
}

TEST(EnableState, TheThreeButtonsOfTheDetailsDependOnTheManagementAlone) {
    EXPECT_TRUE(enableState({}).btnItems);
    EXPECT_FALSE(enableState({}).pageProperties);
}

} // namespace
