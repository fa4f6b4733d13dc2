// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <stdexcept>
#include <string>

#include <boost/make_shared.hpp>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "tests/support/bytes.h"
#include "tests/support/scripted_dispatcher.h"

/// Checks that the test doubles fail when they should.
namespace {

using support::bytes;
using support::ScriptedDispatcher;

TEST(Bytes, AreDigitsCharactersAndTexts) {
    EXPECT_EQ(bytes("c 01 00 m 00 06 'logout' z"), std::string("c\x01\0m\0\x06logoutz", 13));
    EXPECT_EQ(bytes("'a b'  'c'"), "a bc");
    EXPECT_EQ(bytes("FF '\xC3\xA9'"), "\xFF\xC3\xA9");
    EXPECT_EQ(bytes(""), "");
}

TEST(Bytes, RefuseAnythingElse) {
    EXPECT_THROW(bytes("1 0G"), std::invalid_argument);
    EXPECT_THROW(bytes("001"), std::invalid_argument);
    EXPECT_THROW(bytes("'open"), std::invalid_argument);
}

TEST(Bytes, ArePrintedSoThatNoTwoLookAlike) {
    EXPECT_EQ(support::printable(bytes("c 00 FF 5C 7F")), "c\\x00\\xFF\\x5C\\x7F");
}

void leaveALineOver() {
    ScriptedDispatcher agent;
    agent.expect("u", "c 01 00 m 00 04 'Stop' z", "r 01 00 z");
}

TEST(ScriptedDispatcher, FailsTheTestIfALineIsLeftOver) {
    EXPECT_NONFATAL_FAILURE(leaveALineOver(), "Never called: u c\\x01\\x00m\\x00\\x04Stopz");
}

void send(const std::string& url, std::string_view expected, std::string_view sent) {
    ScriptedDispatcher agent;
    agent.expect("u", expected, "r 01 00 z");
    EXPECT_EQ(agent.sendRequest(url, bytes(sent)).size(), 4u);
}

TEST(ScriptedDispatcher, FailsTheTestIfAByteDiffers) {
    EXPECT_NONFATAL_FAILURE(
        send("u", "'a longer request than fits'", "'a longer request than bits'"),
        "printable(request)");
}

TEST(ScriptedDispatcher, FailsTheTestIfTheUrlDiffers) {
    EXPECT_NONFATAL_FAILURE(send("v", "z", "z"), "line.url");
}

void sendOneTooMany() {
    ScriptedDispatcher agent;
    EXPECT_THROW(agent.sendRequest("u", "z"), std::runtime_error);
}

TEST(ScriptedDispatcher, FailsTheTestIfACallIsNotInTheScript) {
    EXPECT_NONFATAL_FAILURE(sendOneTooMany(), "Not in the script: u z");
}

void sendWithRoomFor(std::size_t size) {
    std::string request;
    request.reserve(size);
    request.append(100, 'x');
    ScriptedDispatcher agent;
    agent.expect("u", "'" + request + "'", "z");
    agent.sendRequest("u", request);
}

TEST(ScriptedDispatcher, FailsTheTestIfTheRequestWasNotSizedExactly) {
    sendWithRoomFor(100);
    EXPECT_NONFATAL_FAILURE(sendWithRoomFor(101), "request.capacity()");
    EXPECT_NONFATAL_FAILURE(sendWithRoomFor(99), "request.capacity()");
}

} // namespace
