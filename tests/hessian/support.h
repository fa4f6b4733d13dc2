// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "hessian/reader.h"
#include "hessian/serialize_exception.h"
#include "hessian/value.h"

/// Shared by the codec's tests: bytes typed by hand, and messages in buffers without slack.
namespace codec_test {

/// Bytes typed as pairs of hexadecimal digits, with text in quotes between them:
///
///     bytes("53 00 02 'hi'")
std::string bytes(std::string_view typed);

/// `unit`, `times` times.
std::string repeat(std::string_view unit, std::size_t times);

/// A message in a buffer of exactly its size, so that a sanitizer detects any read past its end.
class Message {
public:
    explicit Message(std::string_view content)
        : size_(content.size())
        , data_(std::make_unique<char[]>(size_)) {
        std::copy(content.begin(), content.end(), data_.get());
    }

    hessianser::Cursor cursor() const { return hessianser::Cursor({data_.get(), size_}); }

private:
    std::size_t size_;
    std::unique_ptr<char[]> data_;
};

/// The text of the failure that `act` throws. The test fails if it doesn't throw.
template <class Act>
std::string failureOf(Act act) {
    try {
        act();
    } catch (const hessianser::serialize_exception& failure) {
        return failure.what();
    }
    ADD_FAILURE() << "nothing was raised";
    return {};
}

/// The text of the failure thrown when reading a `T` from `typed`.
template <class T>
std::string failureOfReading(std::string_view typed) {
    const Message message(bytes(typed));
    return failureOf([&] {
        auto in = message.cursor();
        hessianser::readValue<T>(in);
    });
}

/// Reads a `T` and asserts that nothing of the message is left.
template <class T>
T readWhole(std::string_view content) {
    const Message message(content);
    auto in = message.cursor();
    T value = hessianser::readValue<T>(in);
    EXPECT_EQ(in.remaining, 0u);
    return value;
}

/// The bytes that writing `value` appends. Asserts that the size pass computed their number.
template <class T>
std::string written(const T& value) {
    std::string out;
    hessianser::writeValue(value, out);
    EXPECT_EQ(hessianser::sizeOfValue(value), out.size());
    return out;
}

} // namespace codec_test
