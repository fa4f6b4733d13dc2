// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/text.h"

#include <gtest/gtest.h>

namespace {

using session::fromWire;
using session::toWire;

TEST(Text, GoesToTheWireAsUtf8) {
    const QString text = QStringLiteral("a\u00E9\u20AC") + QString::fromUcs4(U"\U0001F600", 1);
    EXPECT_EQ(toWire(text), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(Text, ComesFromTheWireAsUtf8) {
    EXPECT_EQ(fromWire("a\xC3\xA9\xE2\x82\xAC"), QStringLiteral("a\u00E9\u20AC"));
}

TEST(Text, KeepsZeroCharactersBothWays) {
    const std::string wire("a\0b", 3);
    EXPECT_EQ(fromWire(wire).size(), 3);
    EXPECT_EQ(toWire(fromWire(wire)), wire);
}

TEST(Text, EmptyStaysEmpty) {
    EXPECT_EQ(toWire(QString()), "");
    EXPECT_EQ(fromWire(""), QString());
}

TEST(Text, BytesThatAreNotUtf8BecomeReplacementCharacters) {
    EXPECT_EQ(fromWire("a\xFF"
                       "b"),
              QStringLiteral("a\uFFFDb"));
}

} // namespace
