// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/held_names.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace support {

namespace {

std::mutex mutex;
std::condition_variable changed;
bool holding = false;
int held = 0;
std::function<void()> runAtEnd;

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

bool HeldNames::hangs(std::string_view name) {
    if (!name.ends_with(".held"))
        return false;
    hang();
    return true;
}

} // namespace support
