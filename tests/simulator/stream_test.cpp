// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/simulator/agent_test.h"

using namespace std::string_literals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

class Stream : public AgentTest {
protected:
    void SetUp() override {
        start();
        logIn();
    }

    /// Expects the connection to be closed without a reply, and the reason to be recorded.
    void expectClosed(const std::string& bytes, const std::string& violation) {
        stream_->send(bytes);
        EXPECT_EQ(stream_->receiveRest(), "");
        EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr(violation)));
    }

    std::string frame(std::uint32_t id = 1) {
        return raw::requestFrame(id, root_, raw::call("getTarnClientType"));
    }
};

const std::string clientType = "r\x01\0I\0\0\0\x08z"s;

TEST_F(Stream, AnswersAFrameOfBytesTypedByHand) {
    const std::string url = agent_->baseUrl() + "/api";
    ASSERT_EQ(url.size(), 27u);
    const std::string covered = "\0\0\0\x07"
                                "\0\0\0\x1B"s +
                                url +
                                "\0\0\0\0\0\0\0\x18"
                                "c\x01\0m\0\x11getTarnClientTypez"s;
    const std::uint32_t sum = raw::crc(covered);
    std::string frame = "@REQ" + covered;
    for (int shift = 24; shift >= 0; shift -= 8)
        frame += static_cast<char>(sum >> shift & 0xFF);
    stream_->send(frame);
    // The checksum is zlib's crc32 of the 21 bytes before it.
    EXPECT_EQ(stream_->receive(29), "@RSP"
                                    "\0\0\0\x07"
                                    "\0\0\0\0\0\0\0\x09"
                                    "r\x01\0I\0\0\0\x08z"
                                    "\x1E\x9E\x46\x66"s);
}

TEST_F(Stream, TakesAFrameByteForByte) {
    for (const char byte : frame())
        stream_->send({&byte, 1});
    EXPECT_EQ(raw::receiveResponse(*stream_, 1), clientType);
}

TEST_F(Stream, AnswersManyFramesThatCameAtOnce) {
    std::string all;
    for (std::uint32_t id = 1; id <= 500; ++id)
        all += frame(id);
    stream_->send(all);
    for (std::uint32_t id = 1; id <= 500; ++id)
        ASSERT_EQ(raw::receiveResponse(*stream_, id), clientType);
}

TEST_F(Stream, WorksWithoutTls) {
    start({.plain = true});
    logIn();
    EXPECT_EQ(call("getTarnClientType"), clientType);
}

TEST_F(Stream, ClosesOnAWrongMagic) {
    expectClosed("@REZ" + frame().substr(4), "@REQ");
}

TEST_F(Stream, ClosesOnAWrongMagicInALaterFrame) {
    stream_->send(frame());
    EXPECT_EQ(raw::receiveResponse(*stream_, 1), clientType);
    expectClosed("POST /api HTTP/1.1\r\n\r\n", "@REQ");
}

TEST_F(Stream, ClosesOnAWrongChecksum) {
    std::string wrong = frame();
    wrong[6] = 1;
    expectClosed(wrong, "checksum");
}

TEST_F(Stream, ClosesOnAUrlThatIsTooLong) {
    expectClosed("@REQ\0\0\0\x01\0\0\x10\x01"s, "URL of 4097 bytes");
}

TEST_F(Stream, ClosesOnAnAnnouncedLengthThatNothingHolds) {
    expectClosed("@REQ\0\0\0\x01\0\0\0\0\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xF0"s,
                 "call of 18446744073709551600 bytes");
}

TEST_F(Stream, ServesTheNextClientAfterAHalfFrame) {
    stream_->send(frame().substr(0, 30));
    stream_ = std::make_unique<raw::Connection>(agent_->port(), true);
    EXPECT_EQ(call("getTarnClientType"), clientType);
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Stream, RefusesAnUnknownObject) {
    EXPECT_THAT(callOn(agent_->baseUrl() + "/api/BackupSet/99", "getName"),
                HasSubstr("no such object"));
    EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr("no such object")));
}

TEST_F(Stream, RefusesAnUnknownMethod) {
    EXPECT_THAT(call("getWeather"), HasSubstr("no method 'getWeather'"));
    EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr("getWeather")));
}

TEST_F(Stream, RefusesCallsAfterTheLogout) {
    EXPECT_EQ(call("logout"), raw::reply());
    EXPECT_THAT(call("backup_sets_info"), HasSubstr("the session has ended"));
    EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr("session has ended")));
    EXPECT_EQ(call("Release"), raw::reply());
    EXPECT_THAT(agent_->liveObjects(), IsEmpty());
}

TEST_F(Stream, StopsWithClientsInEveryState) {
    raw::Connection idle(agent_->port(), false); // in mid-handshake
    raw::Connection silent(agent_->port(), true);
    raw::Connection half(agent_->port(), true);
    half.send(frame().substr(0, 5));
    agent_->inject("getTarnClientType", simulator::Delay{std::chrono::hours(1)});
    stream_->send(frame());
    ASSERT_TRUE(agent_->waitForCall("getTarnClientType"));
    agent_->stop();
    EXPECT_EQ(stream_->receiveRest(), "");
    EXPECT_EQ(silent.receiveRest(), "");
    EXPECT_EQ(half.receiveRest(), "");
    EXPECT_EQ(idle.receiveRest(), "");
}

TEST_F(Stream, ComesBackOnTheSamePortWithItsSessions) {
    const std::uint16_t port = agent_->port();
    agent_->restart();
    EXPECT_EQ(agent_->port(), port);
    stream_ = std::make_unique<raw::Connection>(port, true);
    EXPECT_EQ(call("getTarnClientType"), clientType);
}

TEST_F(Stream, CutsTheConnectionsThatAreOpen) {
    EXPECT_EQ(call("getTarnClientType"), clientType);
    agent_->cutConnections();
    EXPECT_EQ(stream_->receiveRest(), "");
    stream_ = std::make_unique<raw::Connection>(agent_->port(), true);
    EXPECT_EQ(call("getTarnClientType"), clientType);
}

} // namespace
