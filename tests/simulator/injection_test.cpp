// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/world.h"
#include "tests/simulator/agent_test.h"

using namespace std::string_literals;
using namespace simulator;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

class Injecting : public AgentTest {
protected:
    void SetUp() override {
        start();
        logIn();
        agent_->withWorld([](World& world) {
            world.about = {{"Computer", "PC"}};
            world.userEmails.clear();
        });
    }

    static std::string record(const std::string& members) {
        return "Mt\0\x1F"s + "com.norvel.api.tarn_client_info" + members + "z";
    }

    void send(std::string_view method) {
        stream_->send(raw::requestFrame(++id_, root_, raw::call(method)));
    }

    const std::string name_ = raw::text("name") + raw::text("Computer");
    const std::string value_ = raw::text("value") + raw::text("PC");
    const std::string plain_ = raw::reply("V" + record(name_ + value_) + "z");
};

TEST_F(Injecting, NothingChangesNothing) {
    EXPECT_EQ(call("getTarnClientInfo"), plain_);
}

TEST_F(Injecting, AFaultBehindTheHeadOfAReply) {
    agent_->inject("getTarnClientInfo", Fault{"Database locked", "X"});
    EXPECT_EQ(call("getTarnClientInfo"),
              "r\x01\0"s + "fS\0\4codeS\0\1XS\0\7messageS\0\x0F"s + "Database lockedz");
    EXPECT_THAT(agent_->violations(), IsEmpty());
    EXPECT_EQ(call("getTarnClientInfo"), plain_);
}

TEST_F(Injecting, AFaultWithoutHead) {
    agent_->inject("getTarnClientInfo", Fault{"no", "X", false});
    EXPECT_EQ(call("getTarnClientInfo"), raw::fault("X", "no"));
}

TEST_F(Injecting, AFaultKeepsTheCallFromRunning) {
    const std::string set = setUrl(1);
    agent_->inject("BackupSet.setName", Fault{"no"});
    EXPECT_THAT(callOn(set, "setName", raw::text("other")), HasSubstr("no"));
    EXPECT_EQ(callOn(set, "getName"), raw::reply(raw::text("Documents")));
    EXPECT_THAT(agent_->callTexts(), ::testing::Contains("BackupSet.setName(\"other\")"));
}

TEST_F(Injecting, UntilCleared) {
    agent_->inject("getTarnClientInfo", Fault{"no", "X", false}, Times::UntilCleared);
    EXPECT_EQ(call("getTarnClientInfo"), raw::fault("X", "no"));
    EXPECT_EQ(call("getTarnClientInfo"), raw::fault("X", "no"));
    EXPECT_EQ(agent_->waitingInjections(), 1u);
    agent_->clearInjections();
    EXPECT_EQ(call("getTarnClientInfo"), plain_);
}

TEST_F(Injecting, AfterSomeCalls) {
    agent_->inject("*", Fault{"no", "X", false}, Times::Once, 2);
    EXPECT_EQ(call("getTarnClientInfo"), plain_);
    EXPECT_EQ(call("getTarnClientInfo"), plain_);
    EXPECT_EQ(call("getTarnClientInfo"), raw::fault("X", "no"));
    EXPECT_EQ(call("getTarnClientInfo"), plain_);
}

TEST_F(Injecting, InTheOrderGivenAndForItsMethodOnly) {
    agent_->inject("getTarnClientInfo", Fault{"first", "X", false});
    agent_->inject("*", Fault{"second", "X", false});
    EXPECT_EQ(call("getTarnClientInfo"), raw::fault("X", "first"));
    EXPECT_EQ(call("backup_sets_info"), raw::fault("X", "second"));
    EXPECT_EQ(agent_->waitingInjections(), 0u);
}

TEST_F(Injecting, AFaultForARelease) {
    agent_->inject("Release", Fault{"no", "X", false});
    EXPECT_EQ(call("Release"), raw::fault("X", "no"));
    EXPECT_THAT(agent_->liveObjects(), SizeIs(1));
}

TEST_F(Injecting, ADelayLetsOthersOvertake) {
    agent_->inject("getTarnClientInfo", Delay{std::chrono::milliseconds(50)});
    send("getTarnClientInfo");
    send("getTarnClientType");
    EXPECT_EQ(raw::receiveResponse(*stream_, 2), raw::reply(raw::int32(8)));
    EXPECT_EQ(raw::receiveResponse(*stream_, 1), plain_);
}

TEST_F(Injecting, Silence) {
    agent_->inject("getTarnClientInfo", Silence{});
    send("getTarnClientInfo");
    ASSERT_TRUE(agent_->waitForCall("getTarnClientInfo"));
    EXPECT_TRUE(stream_->silentFor(50));
    EXPECT_EQ(call("getTarnClientType"), raw::reply(raw::int32(8)));
}

TEST_F(Injecting, SilenceOverHttp) {
    agent_->inject("getTarnClientType", Silence{});
    raw::Connection connection(agent_->port(), tls());
    connection.send(raw::post(agent_->port(), "/api", raw::call("getTarnClientType")));
    ASSERT_TRUE(agent_->waitForCall("getTarnClientType"));
    EXPECT_TRUE(connection.silentFor(50));
}

TEST_F(Injecting, ACutBeforeTheReply) {
    agent_->inject("getTarnClientInfo", CutBefore{});
    send("getTarnClientInfo");
    EXPECT_EQ(stream_->receiveRest(), "");
    EXPECT_THAT(agent_->callTexts(), ::testing::Contains("ClientConnection.getTarnClientInfo()"));
}

TEST_F(Injecting, ACutWithinTheReply) {
    agent_->inject("getTarnClientInfo", CutWithin{17});
    send("getTarnClientInfo");
    EXPECT_EQ(stream_->receiveRest().substr(0, 8), "@RSP\0\0\0\1"s);
    logIn();
    agent_->inject("getTarnClientInfo", CutWithin{17});
    send("getTarnClientInfo");
    EXPECT_EQ(stream_->receiveRest().size(), 17u);
}

TEST_F(Injecting, ACutBehindTheReply) {
    agent_->inject("getTarnClientInfo", CutAfter{});
    EXPECT_EQ(call("getTarnClientInfo"), plain_);
    EXPECT_EQ(stream_->receiveRest(), "");
}

TEST_F(Injecting, ACutWithinAnHttpResponse) {
    agent_->inject("getTarnClientType", CutWithin{12});
    raw::Connection connection(agent_->port(), true);
    connection.send(raw::post(agent_->port(), "/api", raw::call("getTarnClientType")));
    EXPECT_EQ(connection.receiveRest(), "HTTP/1.1 200");
}

TEST_F(Injecting, AWrongChecksum) {
    agent_->inject("getTarnClientType", WrongChecksum{});
    send("getTarnClientType");
    const std::string frame = stream_->receive(29);
    EXPECT_EQ(frame.substr(16, 9), raw::reply(raw::int32(8)));
    std::uint32_t stored = 0;
    for (const char byte : frame.substr(25))
        stored = stored << 8 | static_cast<unsigned char>(byte);
    EXPECT_EQ(stored ^ raw::crc(frame.substr(4, 21)), 1u);
}

TEST_F(Injecting, AWrongMagic) {
    agent_->inject("getTarnClientType", WrongMagic{});
    send("getTarnClientType");
    EXPECT_EQ(stream_->receive(16), "@ERR\0\0\0\1\0\0\0\0\0\0\0\x09"s);
}

TEST_F(Injecting, AReplyThatDrips) {
    agent_->inject("getTarnClientType", Drip{std::chrono::milliseconds(1)});
    EXPECT_EQ(call("getTarnClientType"), raw::reply(raw::int32(8)));
    agent_->inject("getTarnClientType", Drip{std::chrono::hours(1)});
    send("getTarnClientType");
    EXPECT_EQ(stream_->receive(1), "@");
    EXPECT_TRUE(stream_->silentFor(50));
}

TEST_F(Injecting, AnAnnouncementOfAReply) {
    agent_->inject("getTarnClientType", Announcement{0xfffffffe});
    send("getTarnClientType");
    EXPECT_EQ(stream_->receive(16), "@RSP\0\0\0\1\0\0\0\0\xff\xff\xff\xfe"s);
    EXPECT_TRUE(stream_->silentFor(50));
}

TEST_F(Injecting, EffectsOfFramesWaitForTheStream) {
    agent_->inject("getTarnClientType", WrongMagic{});
    EXPECT_EQ(post(raw::call("getTarnClientType")), raw::reply(raw::int32(8)));
    EXPECT_EQ(agent_->waitingInjections(), 1u);
}

TEST_F(Injecting, AnHttpStatusWaitsForHttp) {
    agent_->inject("getTarnClientType", HttpError{503, "Service Unavailable"});
    EXPECT_EQ(call("getTarnClientType"), raw::reply(raw::int32(8)));
    EXPECT_EQ(post(raw::call("getTarnClientType")), "HTTP/1.1 503 Service Unavailable");
    EXPECT_EQ(post(raw::call("getTarnClientType")), raw::reply(raw::int32(8)));
}

TEST_F(Injecting, ARawReply) {
    agent_->inject("getTarnClientType", RawReply{"r\x01\0D"s});
    EXPECT_EQ(call("getTarnClientType"), "r\x01\0D"s);
    agent_->inject("getTarnClientType", RawReply{});
    EXPECT_EQ(call("getTarnClientType"), "");
}

TEST_F(Injecting, AnUnknownKey) {
    agent_->inject("getTarnClientInfo", UnknownKey{"mood"});
    EXPECT_EQ(call("getTarnClientInfo"),
              raw::reply("V" + record(name_ + value_ + raw::text("mood") + raw::int32(0)) + "z"));
}

TEST_F(Injecting, ReversedKeys) {
    agent_->inject("getTarnClientInfo", ReversedKeys{});
    EXPECT_EQ(call("getTarnClientInfo"), raw::reply("V" + record(value_ + name_) + "z"));
}

TEST_F(Injecting, AListWithTypeAndLength) {
    agent_->inject("getTarnClientInfo", ListsWithTypeAndLength{});
    EXPECT_EQ(call("getTarnClientInfo"),
              raw::reply("Vt\0\4listl\0\0\0\1"s + record(name_ + value_) + "z"));
}

TEST_F(Injecting, AnEmptyListWithTypeAndLength) {
    const std::string manager = raw::referenceIn(call("getTFAManager"));
    agent_->inject("getUserEmails", ListsWithTypeAndLength{});
    EXPECT_EQ(callOn(manager, "getUserEmails"), raw::reply("Vt\0\4listl\0\0\0\0z"s));
}

TEST_F(Injecting, AnUnknownEnumerationValueInRecords) {
    agent_->inject("backup_sets_info", UnknownEnumValue{"data_type", 77});
    EXPECT_THAT(call("backup_sets_info"), HasSubstr(raw::text("data_type") + raw::int32(77)));
}

TEST_F(Injecting, AnUnknownEnumerationValueAsTheResult) {
    const std::string set = setUrl(1);
    agent_->inject("getDataType", UnknownEnumValue{{}, -1});
    EXPECT_EQ(callOn(set, "getDataType"), raw::reply(raw::int32(-1)));
}

TEST_F(Injecting, ANullResultIsNobodysReference) {
    agent_->inject("backup_set", NullResult{});
    EXPECT_EQ(call("backup_set", raw::int32(1)), raw::reply("N"));
    EXPECT_THAT(agent_->liveObjects(), ElementsAre(HasSubstr("ClientConnection")));
}

TEST_F(Injecting, ANullForACallWithoutResult) {
    agent_->inject("logout", NullResult{});
    EXPECT_EQ(call("logout"), raw::reply("N"));
}

TEST_F(Injecting, AReferenceThatGotLostMayBeReleasedAllTheSame) {
    agent_->inject("backup_set", CutBefore{});
    stream_->send(raw::requestFrame(++id_, root_, raw::call("backup_set", raw::int32(1))));
    EXPECT_EQ(stream_->receiveRest(), "");
    EXPECT_THAT(agent_->liveObjects(), SizeIs(1));
    stream_ = std::make_unique<raw::Connection>(agent_->port(), true);
    EXPECT_EQ(callOn(agent_->baseUrl() + "/api/BackupSet/2", "Release"), raw::reply());
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Injecting, NestedRecordsAreReachedToo) {
    const std::string set = setUrl(1);
    agent_->inject("getOverview", UnknownKey{"mood"});
    const std::string reply = callOn(set, "getOverview");
    const std::string last = raw::text("mood") + raw::int32(0) + "z";
    const std::size_t inner = reply.find(last);
    EXPECT_NE(reply.find(last, inner + 1), std::string::npos);
}

} // namespace
