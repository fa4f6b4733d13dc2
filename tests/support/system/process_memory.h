// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>

/// The memory of another process.
namespace support::process_memory {

/// Whether the system exposes it.
bool isReadable();

/// Calls `visit` for each part of the writable memory, with its name and its bytes; a process's
/// code and mapped files hold no secret. False if the memory can't be read.
bool visitWritable(
    long process,
    const std::function<void(const std::string& name, const std::string& bytes)>& visit);

} // namespace support::process_memory
