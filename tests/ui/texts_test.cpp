// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "hessian/kinds.h"
#include "ui/activity_type_text.h"
#include "ui/duration_text.h"
#include "ui/plain_tool_tip.h"
#include "ui/set_data_type_text.h"
#include "ui/size_text.h"

namespace {

using hessiancln::ActivityType;
using hessiancln::BackupDataType;
using ui::activityTypeLabel;
using ui::formatDuration;
using ui::getSetDataType;
using ui::sizeToString;

std::string text(const QString& shown) {
    return shown.toStdString();
}

TEST(SizeText, BytesHaveNoDecimals) {
    EXPECT_EQ(text(sizeToString(0)), "0 Byte(s)");
    EXPECT_EQ(text(sizeToString(1023)), "1023 Byte(s)");
}

TEST(SizeText, AKilobyteIs1024Bytes) {
    EXPECT_EQ(text(sizeToString(1024)), "1.00 KB");
    EXPECT_EQ(text(sizeToString(1536)), "1.50 KB");
    EXPECT_EQ(text(sizeToString(1048575)), "1024.00 KB");
}

TEST(SizeText, MegabytesBeginAtTheirBound) {
    EXPECT_EQ(text(sizeToString(1048576)), "1.00 MB");
    EXPECT_EQ(text(sizeToString(1073741823)), "1024.00 MB");
}

TEST(SizeText, GigabytesAreTheLargestUnit) {
    EXPECT_EQ(text(sizeToString(1073741824)), "1.00 GB");
    EXPECT_EQ(text(sizeToString(5.0 * 1024 * 1073741824)), "5120.00 GB");
}

TEST(DurationText, SecondsStandAlone) {
    EXPECT_EQ(text(formatDuration(0)), "0 second(s)");
    EXPECT_EQ(text(formatDuration(59)), "59 second(s)");
}

TEST(DurationText, MinutesAreNotPadded) {
    EXPECT_EQ(text(formatDuration(60)), "1:00");
    EXPECT_EQ(text(formatDuration(61)), "1:01");
    EXPECT_EQ(text(formatDuration(3599)), "59:59");
}

TEST(DurationText, HoursPadWhatFollows) {
    EXPECT_EQ(text(formatDuration(3600)), "1:00:00");
    EXPECT_EQ(text(formatDuration(3661)), "1:01:01");
    EXPECT_EQ(text(formatDuration(86399)), "23:59:59");
}

TEST(DurationText, DaysPadTheHours) {
    EXPECT_EQ(text(formatDuration(86400)), "1 days, 00:00:00");
    EXPECT_EQ(text(formatDuration(90000)), "1 days, 01:00:00");
    EXPECT_EQ(text(formatDuration(10 * 86400 + 3661)), "10 days, 01:01:01");
}

TEST(ActivityTypeLabel, NamesTheKnownTypes) {
    const char* labels[] = {"Backup",
                            "CDP Backup",
                            "Restore",
                            "Daily Admin",
                            "Weekly Admin",
                            "Delete",
                            "Recovery",
                            "Synchronization",
                            "Disk/Tape Request",
                            "Disk/Tape Restore",
                            "Orlop Request",
                            "On-Line File Summary",
                            "Registration",
                            "LAN Discovery",
                            "Orlop Restore",
                            "Validation",
                            "Retention",
                            "Tape Conversion",
                            "Cache Copy",
                            "Cache Monitor",
                            "App Auto Upgrade"};
    int type = 0;
    for (const char* label : labels)
        EXPECT_EQ(text(activityTypeLabel(ActivityType{type++})), label);
    EXPECT_EQ(type, 21);
}

TEST(ActivityTypeLabel, OtherTypesAreUnknown) {
    for (const int type : {21, 30, 31, -1, 1000})
        EXPECT_EQ(text(activityTypeLabel(ActivityType{type})), "Unknown activity type");
}

TEST(SetDataType, NamesTheKnownTypes) {
    const char* names[] = {"File System",      "MS SQL Server", "MS Exchange Server",
                           "Oracle",           "Permissions",   "MS Exchange Email",
                           "MS Outlook Email", "IBM System i",  "My SQL",
                           "Postgres",         "DB2",           "Lotus Notes Email",
                           "Groupwise Email",  "Sharepoint",    "VMWare",
                           "XenServer",        "Sybase",        "MS Hyper-V Server",
                           "VMWare VADP"};
    int type = 0;
    for (const char* name : names)
        EXPECT_EQ(text(getSetDataType(BackupDataType{type++})), name);
    EXPECT_EQ(type, 19);
}

TEST(SetDataType, OtherTypesAreUnknown) {
    for (const int type : {19, 30, -1})
        EXPECT_EQ(text(getSetDataType(BackupDataType{type})), "Unknown Data Type");
}

TEST(PlainToolTip, IsTheTextItself) {
    EXPECT_EQ(text(ui::plainToolTip(QStringLiteral("C:\\Users & Co\\a < b"))),
              "C:\\Users & Co\\a < b");
    EXPECT_EQ(ui::plainToolTip(QString()), QString());
}

TEST(PlainToolTip, ShowsWhatLooksLikeHtml) {
    EXPECT_EQ(text(ui::plainToolTip(QStringLiteral("/home/<b>a&b</b>"))),
              "<span>/home/&lt;b&gt;a&amp;b&lt;/b&gt;</span>");
}

} // namespace
