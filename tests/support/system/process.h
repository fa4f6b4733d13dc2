// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <string>

/// Queries of the operating system about the test's own process and its children, independent of
/// the product.
namespace support::process {

long id();

/// The name of the account, in UTF-8.
std::string accountName();

/// For this process and its children; no value removes the variable.
void setEnvironment(const std::string& name, const std::optional<std::string>& value);

/// Makes the functions of <ctime> use the value of the variable TZ.
void readTimeZone();

/// Bytes of memory that the process has touched.
std::size_t residentSize();

/// Stops a child process, with all of its threads, until `resume`. False on a failure.
bool suspend(long child);
bool resume(long child);

} // namespace support::process
