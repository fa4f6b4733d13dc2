// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <string>

/// What tests ask the operating system about their own process, without the product's help.
namespace support::process {

long id();

/// The name of the account, in UTF-8.
std::string accountName();

/// For this process and those that it starts; without a value the variable goes.
void setEnvironment(const std::string& name, const std::optional<std::string>& value);

/// Has what the variable TZ says taken over by the functions of <ctime>.
void readTimeZone();

/// Bytes of memory that the process has touched.
std::size_t residentSize();

} // namespace support::process
