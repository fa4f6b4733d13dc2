// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/simulator/agent_test.h"

using namespace std::string_literals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

class Objects : public AgentTest {
protected:
    void SetUp() override {
        start();
        logIn();
        set_ = setUrl(1);
        agent_->clearCallLog();
    }

    void expectViolation(const std::string& reply, const std::string& text) {
        EXPECT_EQ(reply.substr(0, 4), "r\x01\0f"s);
        EXPECT_THAT(reply, HasSubstr(text));
        EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr(text)));
    }

    std::string releaseAll() { return callOn(set_, "Release") + call("Release"); }

    std::string set_;
};

TEST_F(Objects, DecodesArgumentsAndLogsThem) {
    EXPECT_EQ(callOn(set_, "setName", raw::text("My \"papers\"")), raw::reply());
    EXPECT_EQ(callOn(set_, "getName"), raw::reply(raw::text("My \"papers\"")));
    EXPECT_THAT(agent_->callTexts(),
                ElementsAre("BackupSet.setName(\"My \\\"papers\\\"\")", "BackupSet.getName()"));
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Objects, RefusesAnotherKind) {
    expectViolation(callOn(set_, "setName", raw::int32(1)),
                    "Invalid data stream part - unexpected data block type");
}

TEST_F(Objects, RefusesAMissingArgument) {
    expectViolation(call("activity_log", raw::int32(1)), "argument 2 of 2 is missing");
}

TEST_F(Objects, RefusesASurplusArgument) {
    expectViolation(call("activity_log", raw::int32(1) + raw::int32(2) + raw::int32(3)),
                    "more than 2 argument(s)");
}

TEST_F(Objects, RefusesACallWithoutAnEnd) {
    stream_->send(raw::requestFrame(++id_, set_, "c\x01\0m\0\x07getName"s));
    expectViolation(raw::receiveResponse(*stream_, id_), "no end");
}

TEST_F(Objects, RefusesBytesBehindTheEnd) {
    stream_->send(raw::requestFrame(++id_, set_, raw::call("getName") + "z"));
    expectViolation(raw::receiveResponse(*stream_, id_), "behind the call's end");
}

TEST_F(Objects, RefusesAnEnumerationValueThatIsNotDeclared) {
    expectViolation(callOn(set_, "getLastActivityOfType", raw::int32(99)),
                    "isn't written as its kind is");
}

TEST_F(Objects, RefusesAListWithALength) {
    expectViolation(callOn(set_, "setItems", "Vl\0\0\0\0z"s), "isn't written as its kind is");
}

TEST_F(Objects, RefusesAListWithAType) {
    expectViolation(callOn(set_, "setItems", "Vt\0\1az"s), "isn't written as its kind is");
}

TEST_F(Objects, TakesAListOfObjects) {
    const std::string items = callOn(set_, "items");
    const std::string list = items.substr(3, items.size() - 4);
    EXPECT_EQ(callOn(set_, "setItems", list), raw::reply());
    EXPECT_THAT(agent_->callTexts().back(),
                "BackupSet.setItems([BackupSetItem(C:\\Users\\anna\\Documents), "
                "BackupSetItem(C:\\Users\\anna\\Desktop)])");
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Objects, RefusesANullWhereAnObjectMustStand) {
    expectViolation(call("removeBackupSet", "N"), "Not");
}

TEST_F(Objects, RefusesAnObjectUnderAnotherName) {
    expectViolation(call("removeBackupSet", raw::remote("com.norvel.api.Schedule", set_)),
                    "sent as 'com.norvel.api.Schedule'");
}

TEST_F(Objects, RefusesAnObjectOfAnotherClass) {
    expectViolation(call("removeBackupSet", raw::remote("com.norvel.api.BackupSet", root_)),
                    "is no BackupSet");
}

TEST_F(Objects, RefusesAnObjectThatWasReleased) {
    EXPECT_EQ(callOn(set_, "Release"), raw::reply());
    expectViolation(call("removeBackupSet", raw::remote("com.norvel.api.BackupSet", set_)),
                    "was released");
}

TEST_F(Objects, TakesAnObjectAsAnArgument) {
    EXPECT_THAT(call("removeBackupSet", raw::remote("com.norvel.api.BackupSet", set_)),
                HasSubstr("com.norvel.api.GenericActivity"));
    EXPECT_THAT(agent_->callTexts(), ElementsAre("ClientConnection.removeBackupSet(BackupSet(1))"));
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Objects, ReportsItsTypes) {
    EXPECT_EQ(callOn(set_, "types"),
              raw::reply("V" + raw::text("BackupSet") + raw::text("Win32FS_BackupSet") + "z"));
}

TEST_F(Objects, GivesEachReferenceAUrlOfItsOwn) {
    EXPECT_NE(setUrl(1), set_);
    EXPECT_THAT(agent_->liveObjects(),
                ElementsAre("ClientConnection " + root_, "BackupSet(1) " + set_,
                            HasSubstr("BackupSet(1) ")));
}

TEST_F(Objects, CountsReleases) {
    EXPECT_EQ(releaseAll(), raw::reply() + raw::reply());
    EXPECT_THAT(agent_->liveObjects(), IsEmpty());
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Objects, RecordsACallAfterTheRelease) {
    callOn(set_, "Release");
    expectViolation(callOn(set_, "getName"), "the object was released");
}

TEST_F(Objects, RecordsASecondRelease) {
    callOn(set_, "Release");
    expectViolation(callOn(set_, "Release"), "the object was released");
}

TEST_F(Objects, RefusesAReleaseWithArguments) {
    expectViolation(callOn(set_, "Release", raw::int32(1)), "Release has arguments");
}

TEST_F(Objects, AnswersSetsThatAreNotThereWithoutAViolation) {
    EXPECT_THAT(call("backup_set", raw::int32(99)), HasSubstr("no backup set with the id 99"));
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Objects, WaitsForACall) {
    EXPECT_FALSE(agent_->waitForCall("getName", 1, std::chrono::milliseconds(1)));
    callOn(set_, "getName");
    EXPECT_TRUE(agent_->waitForCall("getName"));
    EXPECT_TRUE(agent_->waitForCall("BackupSet.getName"));
    EXPECT_FALSE(agent_->waitForCall("getName", 2, std::chrono::milliseconds(1)));
}

} // namespace
