// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Replaces the C library's function in the program it is linked into.
#include "tests/support/held_names.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string_view>
#include <utility>

#include <dlfcn.h>
#include <netdb.h>

namespace {

using Resolve = int (*)(const char*, const char*, const addrinfo*, addrinfo**);

std::mutex mutex;
std::condition_variable changed;
bool holding = false;
int held = 0;
std::function<void()> runAtEnd;

int resolveAsEver(const char* node, const char* service, const addrinfo* hints,
                  addrinfo** results) {
    static const auto real = reinterpret_cast<Resolve>(dlsym(RTLD_NEXT, "getaddrinfo"));
    return real(node, service, hints, results);
}

} // namespace

extern "C" __attribute__((visibility("default"))) int
getaddrinfo(const char* node, const char* service, const addrinfo* hints, addrinfo** results) {
    if (!node || !std::string_view(node).ends_with(".held"))
        return resolveAsEver(node, service, hints, results);
    std::unique_lock lock(mutex);
    ++held;
    changed.notify_all();
    changed.wait(lock, [] { return !holding; });
    --held;
    changed.notify_all();
    if (runAtEnd)
        runAtEnd();
    return EAI_NONAME;
}

namespace support {

HeldNames::HeldNames(std::function<void()> atEnd) {
    const std::lock_guard lock(mutex);
    holding = true;
    runAtEnd = std::move(atEnd);
}

HeldNames::~HeldNames() {
    letGo();
    std::unique_lock lock(mutex);
    changed.wait(lock, [] { return held == 0; });
    runAtEnd = nullptr;
}

void HeldNames::letGo() {
    const std::lock_guard lock(mutex);
    holding = false;
    changed.notify_all();
}

bool HeldNames::waitForHeld(int count) {
    std::unique_lock lock(mutex);
    return changed.wait_for(lock, std::chrono::seconds(20), [&] { return held >= count; });
}

} // namespace support
