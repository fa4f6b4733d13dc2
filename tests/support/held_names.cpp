// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Replaces the C library's functions in the program it is linked into.
#include "tests/support/held_names.h"

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <string_view>
#include <utility>

#include <dlfcn.h>
#include <netdb.h>
#include <pwd.h>

namespace {

using Resolve = int (*)(const char*, const char*, const addrinfo*, addrinfo**);
using FindAccount = int (*)(const char*, passwd*, char*, std::size_t, passwd**);

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

bool isHeld(const char* name) {
    return name && std::string_view(name).ends_with(".held");
}

void hang() {
    std::unique_lock lock(mutex);
    ++held;
    changed.notify_all();
    changed.wait(lock, [] { return !holding; });
    --held;
    changed.notify_all();
    if (runAtEnd)
        runAtEnd();
}

} // namespace

extern "C" __attribute__((visibility("default"))) int
getaddrinfo(const char* node, const char* service, const addrinfo* hints, addrinfo** results) {
    if (!isHeld(node))
        return resolveAsEver(node, service, hints, results);
    hang();
    return EAI_NONAME;
}

extern "C" __attribute__((visibility("default"))) int
getpwnam_r(const char* name, passwd* entry, char* texts, std::size_t room, passwd** found) {
    static const auto real = reinterpret_cast<FindAccount>(dlsym(RTLD_NEXT, "getpwnam_r"));
    if (!isHeld(name))
        return real(name, entry, texts, room, found);
    hang();
    *found = nullptr;
    return 0;
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
