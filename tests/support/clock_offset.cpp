// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/clock_offset.h"

#include <ctime>

#include <dlfcn.h>
#include <sys/time.h>

namespace {

thread_local std::chrono::seconds clockOffset{0};

} // namespace

namespace support {

ClockOffset::ClockOffset(std::chrono::seconds offset) {
    clockOffset = offset;
}

ClockOffset::~ClockOffset() {
    clockOffset = std::chrono::seconds(0);
}

} // namespace support

extern "C" {

__attribute__((visibility("default"))) int gettimeofday(timeval* now, void* zone) noexcept {
    using GetTime = int (*)(timeval*, void*);
    static const auto systemTime = reinterpret_cast<GetTime>(dlsym(RTLD_NEXT, "gettimeofday"));
    const int result = systemTime(now, zone);
    now->tv_sec += clockOffset.count();
    return result;
}

__attribute__((visibility("default"))) time_t time(time_t* result) noexcept {
    timeval now{};
    gettimeofday(&now, nullptr);
    if (result)
        *result = now.tv_sec;
    return now.tv_sec;
}
}
