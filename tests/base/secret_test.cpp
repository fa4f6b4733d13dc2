// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "base/secret.h"

#include <array>
#include <new>
#include <utility>

#include <gtest/gtest.h>

namespace {

using base::Secret;

const std::string key = "a key that is longer than what a string keeps inside of it";
const std::string pin = "1234"; // and a shorter one

bool holds(const char* memory, std::size_t size, const std::string& text) {
    return std::string_view(memory, size).find(text) != std::string_view::npos;
}

TEST(Wipe, OverwritesBeforeItLetsGo) {
    std::string text = key;
    const char* const memory = text.data();
    base::wipe(text);
    EXPECT_TRUE(text.empty());
    ASSERT_EQ(text.data(), memory);
    EXPECT_EQ(std::string(memory, key.size()), std::string(key.size(), '\0'));
}

TEST(Wipe, AtTheEndOfTheBlock) {
    std::string text = key;
    const char* const memory = text.data();
    {
        const base::WipedAtEnd guard(text);
        EXPECT_EQ(text, key);
    }
    EXPECT_EQ(std::string(memory, key.size()), std::string(key.size(), '\0'));
}

TEST(Secret, HoldsItsText) {
    EXPECT_TRUE(Secret().empty());
    const Secret secret(key);
    EXPECT_EQ(secret.text(), key);
    EXPECT_FALSE(secret.empty());
    const Secret copy = secret; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(copy, secret);
    EXPECT_FALSE(copy == Secret(pin));
}

TEST(Secret, LeavesNothingWhereItStood) {
    alignas(Secret) std::array<char, sizeof(Secret)> memory{};
    auto* const secret = new (memory.data()) Secret(pin);
    EXPECT_TRUE(holds(memory.data(), memory.size(), pin));
    secret->~Secret();
    EXPECT_FALSE(holds(memory.data(), memory.size(), pin));
}

TEST(Secret, LeavesNothingWhereItIsTakenFrom) {
    std::string source = pin;
    Secret first(std::move(source));
    EXPECT_FALSE(holds(reinterpret_cast<const char*>(&source), sizeof source, pin));
    Secret second(std::move(first));
    EXPECT_FALSE(holds(reinterpret_cast<const char*>(&first), sizeof first, pin));
    Secret third;
    third = std::move(second);
    EXPECT_FALSE(holds(reinterpret_cast<const char*>(&second), sizeof second, pin));
    EXPECT_EQ(third.text(), pin);
}

TEST(Secret, IsReplacedByACopyOfItselfToo) {
    Secret secret(key);
    const Secret& same = secret;
    secret = same;
    EXPECT_EQ(secret.text(), key);
    secret = Secret(pin);
    EXPECT_EQ(secret.text(), pin);
}

} // namespace
