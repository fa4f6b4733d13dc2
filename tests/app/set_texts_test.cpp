// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <QDateTime>
#include <QtGlobal>

#include "app/set_card_look.h"
#include "app/set_details_text.h"

namespace {

using hessiancln::backup_set_info;
using hessiancln::backup_set_overview_info;
using hessiancln::ScheduleDetailType;

// Read when the first text is created.
const bool localeIsSet = qputenv("LC_ALL", "en_US.UTF-8") && qputenv("TZ", "UTC");

app::SetDetails details(const backup_set_overview_info& overview, std::int32_t lastBackup = 0) {
    hessiancln::activity_log_info activity;
    activity.start_time = lastBackup;
    return app::setDetails(activity, overview);
}

TEST(SetDetails, ALastBackupIsALocalTime) {
    ASSERT_TRUE(localeIsSet);
    EXPECT_EQ(details({}, 1).valLastBackup.toStdString(), "1/1/70 12:00 AM");
}

TEST(SetDetails, ASetWithoutFilesWasNeverBackedUp) {
    EXPECT_EQ(details({}).valLastBackup.toStdString(), "Never backed up");
    EXPECT_EQ(details({}, -5).valLastBackup.toStdString(), "Never backed up");
}

TEST(SetDetails, ASetWithFilesWasBackedUpAtAnUnknownTime) {
    backup_set_overview_info overview;
    overview.status.on_line_file_count = 1;
    EXPECT_EQ(details(overview).valLastBackup.toStdString(), "UNKNOWN");
}

TEST(SetDetails, CountSizeAndData) {
    backup_set_overview_info overview;
    overview.status.on_line_file_count = 1234567;
    overview.status.on_line_data_size = 3LL * 1024 * 1024 * 1024;
    overview.data_type = hessiancln::BackupDataType::Oracle;
    const app::SetDetails texts = details(overview);
    EXPECT_EQ(texts.valFileGens.toStdString(), "1,234,567");
    EXPECT_EQ(texts.valSize.toStdString(), "3.00 GB");
    EXPECT_EQ(texts.valItems.toStdString(), "Oracle");
}

TEST(SetDetails, Schedules) {
    const auto schedule = [](std::int32_t id, int type) {
        backup_set_overview_info overview;
        overview.schedule_id = id;
        overview.schedule_type = ScheduleDetailType{type};
        return details(overview).valSchedule.toStdString();
    };
    EXPECT_EQ(schedule(-1, 2), "Not Scheduled");
    EXPECT_EQ(schedule(0, 2), "Daily");
    EXPECT_EQ(schedule(7, 3), "Monthly");
    EXPECT_EQ(schedule(7, 0), "Custom");
    EXPECT_EQ(schedule(7, 1), "Custom");
    EXPECT_EQ(schedule(7, 4), "Custom");
}

std::string retention(std::int32_t rule, std::int32_t minimum, std::int32_t maximum) {
    backup_set_overview_info overview;
    overview.retention_rule_id = rule;
    overview.min_gen = minimum;
    overview.max_gen = maximum;
    return details(overview).valRetention.toStdString();
}

TEST(SetDetails, ARetentionRuleCountsFirst) {
    EXPECT_EQ(retention(1, -1, 3), "Time-based");
}

TEST(SetDetails, WithoutARuleTheGenerationsCount) {
    EXPECT_EQ(retention(0, -1, -1), "No items");
    EXPECT_EQ(retention(-1, 2, 7), "2 to 7 generations");
}

TEST(SetDetails, EqualGenerationsAreSaidOnce) {
    EXPECT_EQ(retention(0, 5, 5), "5 generation(s)");
    EXPECT_EQ(retention(0, 1, 1), "1 generation(s)");
}

backup_set_info healthySet() {
    backup_set_info set;
    set.in_sync = true;
    set.has_items = true;
    return set;
}

TEST(SetCardLook, AHealthySetIsPlain) {
    const app::SetCardLook look = app::setCardLook(healthySet(), false);
    EXPECT_EQ(look.icon.toStdString(), ":/icons/backup_set_icon.png");
    EXPECT_TRUE(look.overlay.isEmpty());
    EXPECT_TRUE(look.styleSheet.isEmpty());
    EXPECT_FALSE(look.needsEditing);
}

TEST(SetCardLook, ASetOfThePolicyHasALock) {
    backup_set_info set = healthySet();
    set.is_created_by_policy = true;
    EXPECT_EQ(app::setCardLook(set, true).icon.toStdString(), ":/icons/backup_set_lock.png");
    EXPECT_EQ(app::setCardLook(set, false).icon.toStdString(), ":/icons/backup_set_unlock.png");
}

TEST(SetCardLook, ARecoveredSetIsGreyWithAWarning) {
    backup_set_info set = healthySet();
    set.has_items = false;
    const app::SetCardLook look = app::setCardLook(set, true);
    EXPECT_EQ(look.icon.toStdString(), ":/icons/backup_set_icon.png");
    EXPECT_EQ(look.overlay.toStdString(), ":/icons/overlay_warning.png");
    EXPECT_TRUE(look.styleSheet.isEmpty());
    EXPECT_TRUE(look.needsEditing);
}

TEST(SetCardLook, ASetThatIsOutOfSyncIsGreyAndRed) {
    for (const bool hasItems : {false, true}) {
        backup_set_info set = healthySet();
        set.in_sync = false;
        set.has_items = hasItems;
        const app::SetCardLook look = app::setCardLook(set, false);
        EXPECT_EQ(look.overlay.toStdString(), ":/icons/overlay_sync.png");
        EXPECT_EQ(look.styleSheet.toStdString(),
                  "QLabel#labelSetName, QLabel#labelAdditionalInfo, QLineEdit { color: red; "
                  "selection-color: red; }");
        EXPECT_FALSE(look.needsEditing);
    }
}

} // namespace
