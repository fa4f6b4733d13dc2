// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace simulator {

/// A call that reached the agent, as tests compare it.
struct Call {
    std::string className; ///< the class that has the method, as "BackupSet"
    std::string method;
    std::string arguments; ///< as people read them: `3, "Documents", true`

    /// "BackupSet.setName("Documents")"
    std::string text() const { return className + "." + method + "(" + arguments + ")"; }

    friend bool operator==(const Call&, const Call&) = default;
};

} // namespace simulator
