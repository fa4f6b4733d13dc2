// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string_view>

namespace support {

/// Makes the system's resolver, and its database of accounts, hang on each name under ".held" for
/// the lifetime of the object. All other names are looked up as usual. The destructor waits until
/// the last hanging thread has left the look-up. The program links system/*/name_look_ups.cpp.
class HeldNames {
public:
    /// `atEnd` runs on each thread that leaves the resolver.
    explicit HeldNames(std::function<void()> atEnd = {});
    HeldNames(const HeldNames&) = delete;
    HeldNames& operator=(const HeldNames&) = delete;
    ~HeldNames();

    /// Waits until `count` threads hang in a look-up.
    bool waitForHeld(int count);

    /// From now on nothing hangs; the names still don't exist.
    void letGo();

    /// For the replaced functions: true for a name under ".held", after hanging on it.
    static bool hangs(std::string_view name);
};

} // namespace support
