// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Changes to an encoded reply that don't depend on the method. A fault, or a reply without a
/// value, is left unchanged unless documented. Each function returns the changed reply, and throws
/// `serialize_exception` if the input isn't a reply.
namespace simulator {

/// Appends a member with that key to each record.
std::string withKey(const std::string& reply, const std::string& key);

/// Sets the int32 under `key` in each record, or the value itself without a key, to `number`.
std::string withNumber(const std::string& reply, const std::string& key, std::int32_t number);

/// Replaces the value with null.
std::string withNull(const std::string& reply);

std::string withReversedKeys(const std::string& reply);

/// Adds a type name and the length to each list.
std::string withTypedLists(const std::string& reply);

} // namespace simulator
