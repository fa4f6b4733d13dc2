// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/initial_configuration.h"

#include <gtest/gtest.h>

using app::needsInitialConfiguration;
using hessiancln::EmployeeCountCode;
using hessiancln::IndustryCode;
using hessiancln::user_info;

namespace {

constexpr user_info known{276, EmployeeCountCode::UpTo50, IndustryCode::Computer};

} // namespace

TEST(InitialConfiguration, IsNotNeededForAKnownCustomer) {
    EXPECT_FALSE(needsInitialConfiguration({}, known));
    EXPECT_FALSE(needsInitialConfiguration({{"InitialClient", "No"}}, known));
    EXPECT_FALSE(needsInitialConfiguration({{"InitialClient", "yes"}}, known));
    EXPECT_FALSE(needsInitialConfiguration({{"Initial", "Yes"}}, known));
}

TEST(InitialConfiguration, IsNeededForANewAgent) {
    EXPECT_TRUE(needsInitialConfiguration({{"Version", "1"}, {"InitialClient", "Yes"}}, known));
}

TEST(InitialConfiguration, IsNeededWithoutACountry) {
    user_info customer = known;
    customer.country_code = 0;
    EXPECT_TRUE(needsInitialConfiguration({}, customer));
}

TEST(InitialConfiguration, IsNeededWithoutTheNumberOfEmployees) {
    user_info customer = known;
    customer.num_of_employees = EmployeeCountCode(8);
    EXPECT_TRUE(needsInitialConfiguration({}, customer));
}

TEST(InitialConfiguration, IsNeededWithoutTheIndustry) {
    user_info customer = known;
    customer.industry_code = IndustryCode(9);
    EXPECT_TRUE(needsInitialConfiguration({}, customer));
}

TEST(InitialConfiguration, IsNotNeededWhereNothingIsKeptAboutCustomers) {
    EXPECT_FALSE(needsInitialConfiguration({{"InitialClient", "No"}}, std::nullopt));
    EXPECT_TRUE(needsInitialConfiguration({{"InitialClient", "Yes"}}, std::nullopt));
}
