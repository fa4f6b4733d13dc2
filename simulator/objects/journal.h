// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace simulator {

/// A call that reached the agent, in a form that tests compare.
struct Call {
    std::string className; ///< the class that declares the method, as "BackupSet"
    std::string method;
    std::string arguments; ///< human-readable: `3, "Documents", true`

    /// "BackupSet.setName("Documents")"
    std::string text() const { return className + "." + method + "(" + arguments + ")"; }

    friend bool operator==(const Call&, const Call&) = default;
};

} // namespace simulator
