// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "activity_rows.h"

/// The formats that the codec is compared with, from and into the same structures.
namespace bench {

/// An array of maps keyed by name.
std::string writeMsgpack(const Rows& rows);

/// Throws `std::runtime_error` if the bytes aren't such an array.
Rows readMsgpack(std::string_view bytes);

Rows readProtobuf(std::string_view bytes);

/// Rows prepared as messages, so that only their encoding is measured.
class ProtobufRows {
public:
    explicit ProtobufRows(const Rows& rows);
    ProtobufRows(const ProtobufRows&) = delete;
    ProtobufRows& operator=(const ProtobufRows&) = delete;
    ~ProtobufRows();

    /// Appends the bytes to `out`, which must have the capacity for them.
    void write(std::string& out) const;

private:
    struct Messages;
    std::unique_ptr<Messages> messages_;
};

} // namespace bench
