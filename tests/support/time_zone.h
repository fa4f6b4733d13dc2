// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

#include "tests/support/system/process.h"

namespace support {

/// Sets the time zone of the process and restores the previous one at the end. POSIX rules, as in
/// "CET-1CEST,M3.5.0,M10.5.0/3", work on every machine; zone names don't. Windows ignores the dates
/// of summer time, and has those of New York: "EST5EDT,M3.2.0,M11.1.0".
class TimeZone {
public:
    explicit TimeZone(const char* rules) {
        if (const char* before = std::getenv("TZ"))
            before_ = before;
        set(rules);
    }
    ~TimeZone() { set(before_); }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

private:
    static void set(const std::optional<std::string>& rules) {
        process::setEnvironment("TZ", rules);
        process::readTimeZone();
    }

    std::optional<std::string> before_;
};

} // namespace support
