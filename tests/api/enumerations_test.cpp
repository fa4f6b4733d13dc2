// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "api/activity_records.h"
#include "api/backup_set_credentials.h"
#include "api/backup_set_item.h"
#include "api/backup_set_records.h"
#include "api/browser_records.h"
#include "api/client_configuration_records.h"
#include "api/event_records.h"
#include "api/retention_time_span.h"
#include "api/schedule_detail_type.h"
#include "api/user_info.h"
#include "hessian/value.h"
#include "tests/support/bytes.h"

namespace {

using namespace hessiancln;
using support::bytes;

/// The int32 in its wire form.
std::string onTheWire(std::int32_t number) {
    const auto unsignedNumber = static_cast<std::uint32_t>(number);
    std::string result = "I";
    for (const int shift : {24, 16, 8, 0})
        result += static_cast<char>(unsignedNumber >> shift & 0xFF);
    return result;
}

template <class E>
std::int32_t readAs(std::int32_t number) {
    const std::string message = onTheWire(number);
    hessianser::Cursor in(message);
    return static_cast<std::int32_t>(hessianser::readValue<E>(in));
}

template <class E>
std::string written(E value) {
    std::string out;
    hessianser::writeValue(value, out);
    return out;
}

struct Row {
    const char* name;
    std::int32_t first; ///< first declared number
    std::int32_t last;  ///< last declared number
    std::int32_t other;
    std::int32_t (*read)(std::int32_t);
};

const Row rows[] = {
    {"BackupDataType", 0, 29, 30, readAs<BackupDataType>},
    {"BackupSetType", 0, 3, 4, readAs<BackupSetType>},
    {"ActivityType", 0, 30, 31, readAs<ActivityType>},
    {"ActivityCompletion", 0, 35, 36, readAs<ActivityCompletion>},
    {"EventLogType", 0, 2, 3, readAs<EventLogType>},
    {"EventCategory", 0, 13, 14, readAs<EventCategory>},
    {"ScheduleDetailType", 0, 3, 4, readAs<ScheduleDetailType>},
    {"KeyEncryptionType", 0, 7, 8, readAs<KeyEncryptionType>},
    {"ClientOSType", 0, 2, 3, readAs<ClientOSType>},
    {"DayOfWeekCode", 0, 6, 7, readAs<DayOfWeekCode>},
    {"EmployeeCountCode", 1, 7, 8, readAs<EmployeeCountCode>},
    {"IndustryCode", 1, 8, 9, readAs<IndustryCode>},
    {"SelectableItemType", 0, 13, 14, readAs<SelectableItemType>},
    {"NetItemType", 0, 1, 2, readAs<NetItemType>},
    {"BackupSetItemType", 0, 2, 3, readAs<BackupSetItemType>},
    {"SSHAccessType", 0, 2, 3, readAs<SSHAccessType>},
    {"RetentionTimeUnit", 0, 6, 7, readAs<RetentionTimeUnit>},
};

TEST(Enumerations, DeclaredNumbersStandForThemselves) {
    for (const Row& row : rows)
        for (std::int32_t number = row.first; number <= row.last; ++number)
            EXPECT_EQ(row.read(number), number) << row.name;
}

TEST(Enumerations, AnyOtherNumberReadsAsTheReservedOne) {
    using Limits = std::numeric_limits<std::int32_t>;
    for (const Row& row : rows)
        for (const std::int32_t number : {row.first - 1, row.other, row.other + 1, row.other + 256,
                                          Limits::min(), Limits::max()})
            EXPECT_EQ(row.read(number), row.other) << row.name << ' ' << number;
}

TEST(Enumerations, AreWrittenAsTheyAre) {
    EXPECT_EQ(written(ActivityType::Synchronization), bytes("I 00 00 00 07"));
    EXPECT_EQ(written(static_cast<ActivityType>(77)), bytes("I 00 00 00 4D"));
    EXPECT_EQ(written(static_cast<ActivityType>(-1)), bytes("I FF FF FF FF"));
}

template <class E>
struct Named {
    std::int32_t number;
    E value;
};

TEST(Enumerations, ActivityTypesHaveTheirNumbers) {
    using enum ActivityType;
    constexpr Named<ActivityType> names[] = {
        {0, Backup},          {1, CDPBackup},       {2, Restore},       {3, DailyAdmin},
        {4, WeeklyAdmin},     {5, Delete},          {6, Recovery},      {7, Synchronization},
        {8, DiskTapeRequest}, {9, DiskTapeRestore}, {10, OrlopRequest}, {11, OnLineFileSummary},
        {12, Registration},   {13, LANDiscovery},   {14, OrlopRestore}, {15, Validation},
        {16, Retention},      {17, TapeConversion}, {18, CacheCopy},    {19, CacheMonitor},
        {20, AppAutoUpgrade},
    };
    for (const auto& [number, value] : names)
        EXPECT_EQ(static_cast<std::int32_t>(value), number);
}

TEST(Enumerations, EventCategoriesHaveTheirNumbers) {
    using enum EventCategory;
    constexpr Named<EventCategory> names[] = {
        {0, Application}, {1, Socket},  {2, Message},         {3, Database},
        {4, Exception},   {5, IO},      {7, Security},        {8, MAPI},
        {9, Novell},      {10, Oracle}, {6, OperatingSystem}, {11, RMAN},
        {12, XML},        {13, DB2},
    };
    for (const auto& [number, value] : names)
        EXPECT_EQ(static_cast<std::int32_t>(value), number);
}

TEST(Enumerations, DataTypesHaveTheirNumbers) {
    using enum BackupDataType;
    constexpr Named<BackupDataType> names[] = {
        {0, FileSystem},
        {1, MSSQLServer},
        {2, MSExchangeServer},
        {3, Oracle},
        {4, Permissions},
        {5, MSExchangeEmail},
        {6, MSOutlookEmail},
        {7, IBMSystemI},
        {8, MySQL},
        {9, Postgres},
        {10, DB2},
        {11, LotusNotesEmail},
        {13, Sharepoint},
        {12, GroupwiseEmail},
        {14, VMWare},
        {15, XenServer},
        {16, Sybase},
        {17, MSHyperVServer},
        {18, VMWareVADP},
    };
    for (const auto& [number, value] : names)
        EXPECT_EQ(static_cast<std::int32_t>(value), number);
}

TEST(Enumerations, SeveritiesAndScheduleTypesHaveTheirNumbers) {
    EXPECT_EQ(static_cast<int>(EventLogType::Information), 0);
    EXPECT_EQ(static_cast<int>(EventLogType::Warning), 1);
    EXPECT_EQ(static_cast<int>(EventLogType::Error), 2);
    EXPECT_EQ(static_cast<int>(ScheduleDetailType::Weekly), 2);
    EXPECT_EQ(static_cast<int>(ScheduleDetailType::Monthly), 3);
}

/// Numbered with a hole, like the kinds of an agent.
enum class Holed : std::int32_t {};
constexpr auto declaredValues(Holed) {
    return hessianser::values({{1, 1}, {3, 16}});
}

TEST(Enumerations, AHoleReadsAsTheReservedNumber) {
    for (const std::int32_t number : {0, 2, 17, 18, -1})
        EXPECT_EQ(readAs<Holed>(number), 17);
    for (const std::int32_t number : {1, 3, 9, 16})
        EXPECT_EQ(readAs<Holed>(number), number);
}

} // namespace
