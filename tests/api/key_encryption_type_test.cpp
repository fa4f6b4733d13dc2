// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/key_encryption_type.h"

#include <string>

#include <gtest/gtest.h>

#include "api/client_configuration_records.h"
#include "tests/api/record_checks.h"
#include "tests/support/bytes.h"

namespace {

using namespace hessiancln;

TEST(KeyEncryptionType, EachCodeHasAName) {
    const struct {
        std::int32_t code;
        const char* name;
    } rows[] = {
        {0, "NONE"},   {1, "DES"},    {2, "AES128"}, {3, "AES192"}, {4, "AES256"}, {5, "AES128"},
        {6, "AES192"}, {7, "AES256"}, {8, "NONE"},   {9, "NONE"},   {-1, "NONE"},
    };
    for (const auto& [code, name] : rows)
        EXPECT_EQ(keyEncryptionName(KeyEncryptionType{code}), name) << code;
}

TEST(KeyEncryptionType, EachNameHasOneCodeToBeWritten) {
    const struct {
        const char* name;
        std::int32_t code;
    } rows[] = {
        {"NONE", 0},   {"DES", 1}, {"AES128", 5}, {"AES192", 6},  {"AES256", 7},
        {"aes256", 5}, {"", 5},    {"3DES", 5},   {"AES256 ", 5},
    };
    for (const auto& [name, code] : rows)
        EXPECT_EQ(static_cast<std::int32_t>(keyEncryptionFromName(name)), code) << name;
}

TEST(KeyEncryptionType, AStoredCodeOf2ShowsAsAES128AndIsWrittenBackAs5) {
    auto info = decodeRecord<tarnc_reg_info>(
        "M t 00 1D 'com.norvel.api.tarnc_reg_info' S 00 0F 'private_key_enc' I 00 00 00 02 z");
    EXPECT_EQ(keyEncryptionName(info.private_key_enc), "AES128");
    info.private_key_enc = keyEncryptionFromName(keyEncryptionName(info.private_key_enc));
    std::string out;
    hessianser::writeValue(info, out);
    EXPECT_NE(out.find(support::bytes("S 00 0F 'private_key_enc' I 00 00 00 05")),
              std::string::npos);
}

} // namespace
