// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/scripted_dispatcher.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "tests/support/bytes.h"

namespace support {
namespace {

/// The capacity of a buffer that was reserved once, for exactly this many bytes.
std::size_t capacityFor(std::size_t size) {
    std::string buffer;
    buffer.reserve(size);
    return buffer.capacity();
}

} // namespace

ScriptedDispatcher::ScriptedDispatcher()
    : ICallDispatcher(0, "") {}

ScriptedDispatcher::~ScriptedDispatcher() {
    for (const Line& line : script_)
        ADD_FAILURE() << "Never called: " << line.url << ' ' << printable(line.request);
}

void ScriptedDispatcher::expect(std::string_view url, std::string_view request,
                                std::string_view reply) {
    script_.push_back({std::string(url), bytes(request), bytes(reply), {}});
}

void ScriptedDispatcher::expectThenRaise(std::string_view url, std::string_view request,
                                         std::function<void()> raise) {
    script_.push_back({std::string(url), bytes(request), {}, std::move(raise)});
}

void ScriptedDispatcher::expectRelease(std::string_view url) {
    expect(url, "c 01 00 m 00 07 'Release' z", "r 01 00 z");
}

std::string ScriptedDispatcher::sendRequest(const std::string& url, const std::string& request) {
    if (script_.empty()) {
        ADD_FAILURE() << "Not in the script: " << url << ' ' << printable(request);
        throw std::runtime_error("The script has ended");
    }
    const Line line = std::move(script_.front());
    script_.pop_front();
    EXPECT_EQ(url, line.url);
    EXPECT_EQ(printable(request), printable(line.request));
    EXPECT_EQ(request.capacity(), capacityFor(request.size())) << printable(request);
    if (line.raise)
        line.raise();
    return line.reply;
}

} // namespace support
