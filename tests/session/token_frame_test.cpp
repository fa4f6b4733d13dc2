// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/token_frame.h"

#include <algorithm>
#include <memory>

#include <gtest/gtest.h>

namespace {

using hessianser::Binary;

/// The token in a frame of exactly these bytes. Copied to a buffer of exactly that size, so that a
/// sanitizer detects any read outside it.
Binary tokenIn(const Binary& bytes) {
    const auto exact = std::make_unique<std::uint8_t[]>(bytes.size());
    std::ranges::copy(bytes, exact.get());
    const auto token = session::framedToken({exact.get(), bytes.size()});
    return Binary(token.begin(), token.end());
}

TEST(TokenFrame, BeginsWithTheLengthInLittleEndian) {
    EXPECT_EQ(session::frameToken(Binary{0xAA, 0xBB, 0xCC}),
              (Binary{0x03, 0x00, 0x00, 0x00, 0xAA, 0xBB, 0xCC}));
}

TEST(TokenFrame, UsesAllBytesOfTheLength) {
    const Binary frame = session::frameToken(Binary(0x010203, 0x55));
    ASSERT_EQ(frame.size(), 0x010203u + 4);
    EXPECT_EQ(Binary(frame.begin(), frame.begin() + 5), (Binary{0x03, 0x02, 0x01, 0x00, 0x55}));
}

TEST(TokenFrame, OfAnEmptyTokenIsALengthOfZero) {
    EXPECT_EQ(session::frameToken({}), (Binary{0, 0, 0, 0}));
}

TEST(FramedToken, IsWhatFollowsTheLength) {
    EXPECT_EQ(tokenIn({0x02, 0, 0, 0, 0xAA, 0xBB}), (Binary{0xAA, 0xBB}));
}

TEST(FramedToken, LeavesOutTheBytesBehindIt) {
    EXPECT_EQ(tokenIn({0x01, 0, 0, 0, 0xAA, 0xBB}), (Binary{0xAA}));
}

TEST(FramedToken, ReadsTheLengthInLittleEndian) {
    Binary frame{0x00, 0x01, 0, 0};
    frame.resize(4 + 300, 0x77);
    EXPECT_EQ(tokenIn(frame), Binary(256, 0x77));
}

TEST(FramedToken, OfALengthOfZeroIsEmpty) {
    EXPECT_EQ(tokenIn({0, 0, 0, 0, 0xAA}), Binary());
}

TEST(FramedToken, OfAFrameTooShortForALengthIsEmpty) {
    EXPECT_EQ(tokenIn({}), Binary());
    EXPECT_EQ(tokenIn({0x01}), Binary());
    EXPECT_EQ(tokenIn({0x01, 0, 0}), Binary());
}

TEST(FramedToken, OfAFrameThatPromisesTooMuchIsWhatIsThere) {
    EXPECT_EQ(tokenIn({0x03, 0, 0, 0, 0xAA, 0xBB}), (Binary{0xAA, 0xBB}));
    EXPECT_EQ(tokenIn({0xFF, 0xFF, 0xFF, 0xFF, 0xAA}), (Binary{0xAA}));
    EXPECT_EQ(tokenIn({0x01, 0, 0, 0}), Binary());
}

} // namespace
