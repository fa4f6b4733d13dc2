// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <cstdint>
#include <initializer_list>

#include <gtest/gtest.h>

#include "api/backup_set_credentials.h"
#include "api/backup_set_item.h"
#include "api/browser_records.h"
#include "api/client_configuration_records.h"
#include "api/retention_time_span.h"
#include "api/schedule_detail.h"
#include "api/user_info.h"

namespace {

using namespace hessiancln;

template <class E>
void expectNumbers(std::initializer_list<E> values, std::initializer_list<std::int32_t> numbers) {
    ASSERT_EQ(values.size(), numbers.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        EXPECT_EQ(static_cast<std::int32_t>(values.begin()[i]), numbers.begin()[i]);
}

TEST(EnumerationCodes, OfTheConfiguration) {
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

TEST(EnumerationCodes, OfItemsAndAccess) {
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

TEST(EnumerationCodes, OfSchedulesAndRetention) {
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
