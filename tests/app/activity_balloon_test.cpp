// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/activity_balloon.h"

#include <gtest/gtest.h>

using hessiancln::ActivityType;
using hessiancln::running_activity_info;

namespace {

running_activity_info activity(ActivityType type, std::int32_t setId, const char* description) {
    running_activity_info info;
    info.type = type;
    info.set_id = setId;
    info.description = description;
    return info;
}

/// Knows the set 7 only.
std::optional<QString> nameOf(std::int32_t setId) {
    if (setId == 7)
        return QStringLiteral("Documents %1");
    return std::nullopt;
}

QString started(const running_activity_info& info) {
    return app::activityBalloonText({info}, {}, nameOf);
}

} // namespace

TEST(ActivityBalloon, NamesTheSet) {
    EXPECT_EQ(started(activity(ActivityType::Backup, 7, "text")),
              QStringLiteral("Started - Backup - Documents %1\n"));
}

TEST(ActivityBalloon, TakesTheDescriptionOfASetWithoutName) {
    EXPECT_EQ(started(activity(ActivityType::Backup, 8, "text")),
              QStringLiteral("Started - Backup - text\n"));
}

TEST(ActivityBalloon, AsksForNoNameWithoutASet) {
    const auto refuse = [](std::int32_t) -> std::optional<QString> {
        ADD_FAILURE() << "asked";
        return std::nullopt;
    };
    const auto info = activity(ActivityType::DailyAdmin, 0, "text");
    EXPECT_EQ(app::activityBalloonText({info}, {}, refuse),
              QStringLiteral("Started - Daily Admin - text\n"));
}

TEST(ActivityBalloon, SaysTheTypeAloneWhenNothingElseIsKnown) {
    EXPECT_EQ(started(activity(ActivityType::Delete, 8, "")), QStringLiteral("Started - Delete\n"));
    EXPECT_EQ(started(activity(ActivityType::Delete, -1, "")),
              QStringLiteral("Started - Delete\n"));
}

TEST(ActivityBalloon, ReportsWhatHasBegunBeforeWhatHasEnded) {
    const QString text = app::activityBalloonText(
        {activity(ActivityType::Backup, 0, "a"), activity(ActivityType::Restore, 0, "b")},
        {activity(ActivityType::Delete, 7, "c")}, nameOf);
    EXPECT_EQ(text, QStringLiteral("Started - Backup - a\nStarted - Restore - b\n"
                                   "Completed - Delete - Documents %1\n"));
}

TEST(ActivityBalloon, ShowsTenActivitiesAtMost) {
    QList<running_activity_info> ten;
    for (int i = 0; i < 10; ++i)
        ten << activity(ActivityType::Backup, 0, "a");
    EXPECT_EQ(app::activityBalloonText(ten, {}, nameOf),
              QStringLiteral("Started - Backup - a\n").repeated(10));
}

TEST(ActivityBalloon, CountsTheRest) {
    QList<running_activity_info> six;
    for (int i = 0; i < 6; ++i)
        six << activity(ActivityType::Backup, 7, "a");
    EXPECT_EQ(app::activityBalloonText(six, six, nameOf),
              QStringLiteral("Started - Backup - Documents %1\n").repeated(6) +
                  QStringLiteral("Completed - Backup - Documents %1\n").repeated(3) +
                  QStringLiteral("and 3 more\n"));
}
