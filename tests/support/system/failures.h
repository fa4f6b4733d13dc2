// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

/// Failures of a connection as this system numbers and words them, independent of the transport.
namespace support::failures {

struct Failure {
    int number = 0;
    /// UTF-8, without a period.
    std::string text;

    /// As in "111 (Connection refused)".
    std::string reported() const { return std::to_string(number) + " (" + text + ")"; }
};

/// There is no listener.
Failure refused();
Failure reset();
Failure timedOut();
/// A listener that asks for a port of another process, if only to reuse it.
Failure portTaken();
Failure outOfMemory();

} // namespace support::failures
