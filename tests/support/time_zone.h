// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace support {

/// Sets the zone that the process lives in, and at its end the one before. Rules of POSIX, as in
/// "CET-1CEST,M3.5.0,M10.5.0/3", are known to every machine; names aren't.
class TimeZone {
public:
    explicit TimeZone(const char* rules) {
        if (const char* before = std::getenv("TZ"))
            before_ = before;
        ::setenv("TZ", rules, 1);
        ::tzset();
    }
    ~TimeZone() {
        before_ ? ::setenv("TZ", before_->c_str(), 1) : ::unsetenv("TZ");
        ::tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

private:
    std::optional<std::string> before_;
};

} // namespace support
