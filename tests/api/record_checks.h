// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>

#include <gtest/gtest.h>

#include "hessian/serialize_exception.h"
#include "hessian/value.h"
#include "tests/support/bytes.h"

/// Reads the record from a message in the notation of `support::bytes` that holds nothing else.
template <class R>
R decodeRecord(const char* notation) {
    const std::string message = support::bytes(notation);
    hessianser::Cursor in(message);
    R record = hessianser::readValue<R>(in);
    EXPECT_EQ(in.remaining, 0u);
    return record;
}

/// The error with which the message is refused, or an empty string.
template <class R>
std::string recordRefusal(const std::string& message) {
    try {
        hessianser::Cursor in(message);
        hessianser::readValue<R>(in);
    } catch (const hessianser::serialize_exception& e) {
        return e.what();
    }
    return "";
}

/// Checks what holds for every record: writing it reproduces `golden`, which has all fields in
/// their order, in exactly the computed size; an added key or a truncated message is refused.
template <class R>
void checkRecord(const char* golden) {
    SCOPED_TRACE(R::wireType);
    const std::string message = support::bytes(golden);
    const R record = decodeRecord<R>(golden);
    std::string out;
    hessianser::writeValue(record, out);
    EXPECT_EQ(support::printable(out), support::printable(message));
    EXPECT_EQ(hessianser::sizeOfValue(record), message.size());

    const std::string extra = support::bytes("S 00 05 'extra' N");
    EXPECT_EQ(recordRefusal<R>(std::string(message).insert(4 + R::wireType.size(), extra)),
              "Unknown map field type");
    EXPECT_EQ(recordRefusal<R>(std::string(message).insert(message.size() - 1, extra)),
              "Unknown map field type");
    for (std::size_t length = 0; length < message.size(); ++length)
        EXPECT_NE(recordRefusal<R>(message.substr(0, length)), "") << length;
}
