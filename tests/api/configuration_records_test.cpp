// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "api/client_configuration_records.h"
#include "api/system_addresses.h"
#include "api/time_in_day.h"
#include "api/user_email.h"
#include "api/user_info.h"
#include "tests/api/golden_configuration_records.h"
#include "tests/api/record_checks.h"
#include "tests/support/bytes.h"

namespace {

using namespace hessiancln;
using support::bytes;
using support::printable;

using Addresses = std::vector<std::string>;

TEST(ConfigurationRecords, tarnc_reg_info) {
    checkRecord<tarnc_reg_info>(golden::tarnc_reg_info);
    const auto r = decodeRecord<tarnc_reg_info>(golden::tarnc_reg_info);
    EXPECT_EQ(r.customer_name, "Bäckerei Größe €");
    EXPECT_EQ(r.account_num, "ACC-17");
    EXPECT_EQ(r.client_num, "ABCDEF012345");
    EXPECT_EQ(r.private_key_enc, KeyEncryptionType::AES256);
    EXPECT_EQ(r.account_key_enc, KeyEncryptionType::DES);
    EXPECT_EQ(r.private_key, "schlüssel 𝄞");
    EXPECT_EQ(r.account_key, "zweiter");
    EXPECT_EQ(r.tarnsys_ip_addr, "10.0.0.1\\;süd.example");
    EXPECT_TRUE(r.escrow_enc_key);
}

TEST(ConfigurationRecords, ad_user_info) {
    checkRecord<ad_user_info>(golden::ad_user_info);
    const auto r = decodeRecord<ad_user_info>(golden::ad_user_info);
    EXPECT_EQ(r.username, "jörg");
    EXPECT_EQ(r.password, "pässwört €");
    EXPECT_TRUE(r.save);
}

TEST(ConfigurationRecords, user_info) {
    checkRecord<user_info>(golden::user_info);
    const auto r = decodeRecord<user_info>(golden::user_info);
    EXPECT_EQ(r.country_code, 276);
    EXPECT_EQ(r.num_of_employees, EmployeeCountCode::UpTo500);
    EXPECT_EQ(r.industry_code, IndustryCode::PublicSectorAndHealthcare);
}

TEST(ConfigurationRecords, user_email) {
    checkRecord<user_email>(golden::user_email);
    const auto r = decodeRecord<user_email>(golden::user_email);
    EXPECT_EQ(r.username, "zoë");
    EXPECT_EQ(r.domain, "BÜRO");
    EXPECT_EQ(r.email, "zoe@example.org");
}

TEST(ConfigurationRecords, time_in_day) {
    checkRecord<time_in_day>(golden::time_in_day);
    const auto r = decodeRecord<time_in_day>(golden::time_in_day);
    EXPECT_EQ(r.hour, 30);
    EXPECT_EQ(r.minute, 45);
    EXPECT_EQ(r.second, 59);
}

TEST(ConfigurationRecords, EmptyOnesHoldEveryField) {
    std::string out;
    hessianser::writeValue(tarnc_reg_info(), out);
    EXPECT_EQ(
        printable(out),
        printable(bytes("M t 00 1D 'com.norvel.api.tarnc_reg_info' S 00 0D 'customer_name' S 00 00 "
                        "S 00 0B 'account_num' S 00 00 "
                        "S 00 0A 'client_num' S 00 00 S 00 0F 'private_key_enc' I 00 00 00 00 S 00 "
                        "0F 'account_key_enc' "
                        "I 00 00 00 00 S 00 0B 'private_key' S 00 00 S 00 0B 'account_key' S 00 00 "
                        "S 00 0F 'tarnsys_ip_addr' S 00 00 S 00 0E 'escrow_enc_key' F z")));
    EXPECT_EQ(hessianser::sizeOfValue(tarnc_reg_info()), out.size());
}

TEST(ConfigurationRecords, FieldsMayComeInAnyOrderAndBeMissing) {
    const auto r = decodeRecord<tarnc_reg_info>(
        "M t 00 1D 'com.norvel.api.tarnc_reg_info' S 00 0E 'escrow_enc_key' T S 00 0B "
        "'private_key' S 00 01 'k' S 00 0D 'customer_name' S 00 01 'c' z");
    EXPECT_EQ(r.customer_name, "c");
    EXPECT_EQ(r.private_key, "k");
    EXPECT_TRUE(r.escrow_enc_key);
    EXPECT_EQ(r.account_num, "");
    EXPECT_EQ(r.private_key_enc, KeyEncryptionType::NONE);
}

TEST(ConfigurationRecords, UserInfoThatIsNotFilledIn) {
    constexpr auto filled = user_info{276, EmployeeCountCode::UpTo50, IndustryCode::Computer};
    EXPECT_FALSE(isMissing(filled));
    EXPECT_TRUE(isMissing({.country_code = 0,
                           .num_of_employees = EmployeeCountCode{1},
                           .industry_code = IndustryCode{1}}));
    EXPECT_TRUE(isMissing({.country_code = 276,
                           .num_of_employees = EmployeeCountCode{8},
                           .industry_code = IndustryCode{1}}));
    EXPECT_TRUE(isMissing({.country_code = 276,
                           .num_of_employees = EmployeeCountCode{7},
                           .industry_code = IndustryCode{9}}));
}

TEST(ConfigurationRecords, UserInfoOfANewerAgentCountsAsMissing) {
    EXPECT_TRUE(isMissing(decodeRecord<user_info>(
        "M t 00 18 'com.norvel.api.user_info' S 00 0C 'country_code' I 00 00 01 14 S 00 10 "
        "'num_of_employees' I 00 00 00 0C S 00 0D 'industry_code' "
        "I 00 00 00 01 z")));
    EXPECT_TRUE(isMissing(decodeRecord<user_info>(
        "M t 00 18 'com.norvel.api.user_info' S 00 0C 'country_code' I 00 00 01 14 S 00 10 "
        "'num_of_employees' I 00 00 00 01 S 00 0D 'industry_code' "
        "I 00 00 00 00 z")));
}

TEST(ConfigurationRecords, ARunAtHourMinusOneIsOff) {
    EXPECT_TRUE(isRunOff({-1, 0, 0}));
    EXPECT_FALSE(isRunOff({0, 0, 0}));
    EXPECT_FALSE(isRunOff({23, 59, 0}));
}

TEST(SystemAddresses, NoneIsTheEmptyText) {
    EXPECT_EQ(joinSystemAddresses({}), "");
    EXPECT_EQ(splitSystemAddresses(""), Addresses());
}

TEST(SystemAddresses, OneHasNoSeparator) {
    EXPECT_EQ(joinSystemAddresses({"10.0.0.1"}), "10.0.0.1");
    EXPECT_EQ(splitSystemAddresses("10.0.0.1"), Addresses{"10.0.0.1"});
}

TEST(SystemAddresses, SeveralHaveABackslashAndASemicolonBetweenThem) {
    EXPECT_EQ(joinSystemAddresses({"10.0.0.1", "süd.example", "c"}), "10.0.0.1\\;süd.example\\;c");
    EXPECT_EQ(splitSystemAddresses("10.0.0.1\\;süd.example\\;c"),
              (Addresses{"10.0.0.1", "süd.example", "c"}));
}

TEST(SystemAddresses, BlanksAndEmptyPartsAreDropped) {
    EXPECT_EQ(splitSystemAddresses("\\; a \\;\\;\t b\r\n\\;  \\;"), (Addresses{"a", "b"}));
}

TEST(SystemAddresses, ASemicolonOrABackslashAloneIsPartOfAnAddress) {
    EXPECT_EQ(splitSystemAddresses("a;b\\c"), Addresses{"a;b\\c"});
    EXPECT_EQ(splitSystemAddresses("a\\"), Addresses{"a\\"});
}

} // namespace
