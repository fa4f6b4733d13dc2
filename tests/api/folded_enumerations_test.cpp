// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "api/backup_set_credentials.h"
#include "api/backup_set_item.h"
#include "api/browser_records.h"
#include "api/client_configuration_records.h"
#include "api/retention_time_span.h"
#include "api/schedule_detail.h"
#include "api/user_info.h"
#include "hessian/value.h"

namespace {

using namespace hessiancln;

/// What the int32 reads as when it stands on the wire in an enumeration's place.
template <class E>
std::int32_t readAs(std::int32_t number) {
    const auto n = static_cast<std::uint32_t>(number);
    const std::string message{'I', static_cast<char>(n >> 24), static_cast<char>(n >> 16 & 0xFF),
                              static_cast<char>(n >> 8 & 0xFF), static_cast<char>(n & 0xFF)};
    hessianser::Cursor in(message);
    return static_cast<std::int32_t>(hessianser::readValue<E>(in));
}

struct Row {
    const char* name;
    std::int32_t first; ///< the declared numbers go from this one
    std::int32_t last;  ///< to this one
    std::int32_t other;
    std::int32_t (*read)(std::int32_t);
};

const Row rows[] = {
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
    {"ScheduleDetailType", 0, 3, 4, readAs<ScheduleDetailType>},
};

TEST(FoldedEnumerations, DeclaredNumbersStandForThemselves) {
    for (const Row& row : rows)
        for (std::int32_t number = row.first; number <= row.last; ++number)
            EXPECT_EQ(row.read(number), number) << row.name;
}

TEST(FoldedEnumerations, AnyOtherNumberReadsAsTheReservedOne) {
    using Limits = std::numeric_limits<std::int32_t>;
    for (const Row& row : rows)
        for (const std::int32_t number : {row.first - 1, row.other, row.other + 1, row.other + 256,
                                          Limits::min(), Limits::max()})
            EXPECT_EQ(row.read(number), row.other) << row.name << ' ' << number;
}

template <class E>
void expectNumbers(std::initializer_list<E> values, std::initializer_list<std::int32_t> numbers) {
    ASSERT_EQ(values.size(), numbers.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        EXPECT_EQ(static_cast<std::int32_t>(values.begin()[i]), numbers.begin()[i]);
}

TEST(FoldedEnumerations, CodesOfTheConfiguration) {
    {
        using enum KeyEncryptionType;
        expectNumbers({NONE, DES, AES128, AES192, AES256}, {0, 1, 5, 6, 7});
    }
    {
        using enum DayOfWeekCode;
        expectNumbers({Monday, Tuesday, Wednesday, Thursday, Friday, Saturday, Sunday},
                      {0, 1, 2, 3, 4, 5, 6});
    }
    {
        using enum EmployeeCountCode;
        expectNumbers({UpTo50, UpTo200, UpTo500, UpTo1000, UpTo5000, UpTo10000, Above10000},
                      {1, 2, 3, 4, 5, 6, 7});
    }
    {
        using enum IndustryCode;
        expectNumbers({ManufacturingAndEnergy, RetailAndWholesale, UtilitiesAndTelecommunications,
                       Computer, BusinessServicesAndConstruction, MediaAndLeisure,
                       FinancialServices, PublicSectorAndHealthcare},
                      {1, 2, 3, 4, 5, 6, 7, 8});
    }
    expectNumbers({ClientOSType::Windows}, {0});
}

TEST(FoldedEnumerations, CodesOfItemsAndAccess) {
    {
        using enum SelectableItemType;
        expectNumbers({Drive, Folder, OtherFolder, File, Database}, {0, 1, 2, 3, 7});
    }
    {
        using enum BackupSetItemType;
        expectNumbers({Inclusion, Exclusion, RegularExpression}, {0, 1, 2});
    }
    {
        using enum SSHAccessType;
        expectNumbers({Perl, Python, DirectScriptExecution}, {0, 1, 2});
    }
    expectNumbers({NetItemType::Container, NetItemType::Computer}, {0, 1});
}

TEST(FoldedEnumerations, CodesOfSchedulesAndRetention) {
    {
        using enum RetentionTimeUnit;
        expectNumbers({Days, Weeks, Months, Years}, {3, 4, 5, 6});
    }
    EXPECT_EQ(taskBackup, 1);
    EXPECT_EQ(taskRetention, 2);
    const std::int32_t days[] = {dayMonday, dayTuesday,  dayWednesday, dayThursday,
                                 dayFriday, daySaturday, daySunday};
    const std::int32_t bits[] = {1, 2, 4, 8, 16, 32, 64};
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(days[i], bits[i]);
}

} // namespace
