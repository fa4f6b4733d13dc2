// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/connection_key.h"

#include <gtest/gtest.h>

namespace {

using hessiancln::ConnectionKey;

void expectBefore(const ConnectionKey& first, const ConnectionKey& second) {
    EXPECT_TRUE(first < second);
    EXPECT_FALSE(second < first);
}

void expectSame(const ConnectionKey& first, const ConnectionKey& second) {
    EXPECT_FALSE(first < second);
    EXPECT_FALSE(second < first);
}

TEST(ConnectionKey, TlsComesBeforePlain) {
    expectBefore({true, "z", 9}, {false, "a", 1});
}

TEST(ConnectionKey, ThenTheLowerPort) {
    expectBefore({true, "z", 1}, {true, "a", 2});
}

TEST(ConnectionKey, ThenTheHost) {
    expectBefore({true, "a", 1}, {true, "b", 1});
    expectBefore({true, "a", 1}, {true, "ab", 1});
    expectBefore({true, "", 1}, {true, "a", 1});
}

TEST(ConnectionKey, TheCaseOfTheHostMakesNoDifference) {
    expectSame({true, "Agent.Example", 1}, {true, "aGENT.eXAMPLE", 1});
    expectBefore({true, "A", 1}, {true, "b", 1});
    expectBefore({true, "a", 1}, {true, "B", 1});
}

} // namespace
