// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Changes to an encoded reply that need no knowledge of the method. A reply without a value, or
/// a fault, stays as it is, except where told. Each returns the changed reply, and raises
/// `serialize_exception` if it isn't one.
namespace simulator {

/// Each record gets a last member of that key.
std::string withKey(const std::string& reply, const std::string& key);

/// The int32 under `key` in each record, or without a key the value itself, becomes `number`.
std::string withNumber(const std::string& reply, const std::string& key, std::int32_t number);

/// The value becomes a null.
std::string withNull(const std::string& reply);

std::string withReversedKeys(const std::string& reply);

/// Each list gets a type name and its length.
std::string withTypedLists(const std::string& reply);

} // namespace simulator
