// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <functional>
#include <stdexcept>
#include <string>

#include "api/client_connection.h"
#include "hessian/serialize_exception.h"
#include "tests/api/golden_records.h"
#include "tests/support/proxy_test.h"
#include "transport/invoke_exception.h"

namespace {

using namespace hessiancln;

constexpr char getID[] = "c 01 00 m 00 05 'getID' z";
constexpr char stop[] = "c 01 00 m 00 04 'Stop' z";

/// How methods handle good and bad replies, shown by one with a result and one without.
class ReplyTest : public support::ProxyTest {
protected:
    template <class Exception, class Call>
    static std::string textOf(Call call) {
        try {
            call();
        } catch (const Exception& e) {
            return e.what();
        }
        return "nothing was raised";
    }

    std::string faultOfGetID(std::string_view reply) {
        expect(getID, reply);
        return textOf<invoke_exception>([&] { activity->getID(); });
    }
    std::string refusalOfGetID(std::string_view reply) {
        expect(getID, reply);
        return textOf<hessianser::serialize_exception>([&] { activity->getID(); });
    }
    std::string refusalOfStop(std::string_view reply) {
        expect(stop, reply);
        return textOf<hessianser::serialize_exception>([&] { activity->Stop(); });
    }

    const boost::shared_ptr<GenericActivity> activity = proxyAt<GenericActivity>("here");
    const boost::shared_ptr<ClientConnection> root = proxyAt<ClientConnection>("here");
};

TEST_F(ReplyTest, WithoutResultIsEmptyOrNull) {
    expect(stop, "72 01 00 7A");
    activity->Stop();
    expect(stop, "72 01 00 4E 7A");
    activity->Stop();
}

TEST_F(ReplyTest, WithoutResultMustNotHoldAnotherValue) {
    EXPECT_EQ(refusalOfStop("r 01 00 I 00 00 00 05 z"), "Not a remote call end");
    EXPECT_EQ(refusalOfStop("r 01 00 N N z"), "Not a remote call end");
}

TEST_F(ReplyTest, WithoutResultMustEnd) {
    EXPECT_EQ(refusalOfStop("r 01 00"), "Not enough space to read a reply end");
    // A null as the last byte isn't taken for a result.
    EXPECT_EQ(refusalOfStop("r 01 00 N"), "Not a remote call end");
}

TEST_F(ReplyTest, BytesBehindItsEndAreIgnored) {
    expect(getID, "r 01 00 I 00 00 00 05 z f FF");
    EXPECT_EQ(activity->getID(), 5);
}

TEST_F(ReplyTest, AFaultIsRaisedWithItsMessageAlone) {
    EXPECT_EQ(faultOfGetID("r 01 00 f S 00 04 'code' S 00 10 'ServiceException' S 00 07 'message' "
                           "S 00 0B 'Gerät fehlt' z z"),
              "Gerät fehlt");
}

TEST_F(ReplyTest, AFaultNeedsNoReplyHead) {
    EXPECT_EQ(faultOfGetID("f S 00 04 'code' S 00 10 'ServiceException' S 00 07 'message' S 00 0B "
                           "'Gerät fehlt' z"),
              "Gerät fehlt");
}

TEST_F(ReplyTest, AFaultToAMethodWithoutResult) {
    expect(stop, "f S 00 07 'message' S 00 02 'no' z");
    EXPECT_EQ(textOf<invoke_exception>([&] { activity->Stop(); }), "no");
}

TEST_F(ReplyTest, AFaultWithoutMessage) {
    EXPECT_EQ(faultOfGetID("r 01 00 f S 00 04 'code' S 00 10 'ServiceException' z z"),
              "<Message could not be parsed>");
    EXPECT_EQ(faultOfGetID("f z"), "<Message could not be parsed>");
}

TEST_F(ReplyTest, AFaultIsReadNoFurtherThanAnUnknownEntry) {
    EXPECT_EQ(faultOfGetID("f S 00 07 'message' S 00 02 'no' S 00 06 'detail' M"), "no");
    EXPECT_EQ(faultOfGetID("f S 00 06 'detail' S 00 01 'x' S 00 07 'message' S 00 02 'no' z"),
              "<Message could not be parsed>");
}

TEST_F(ReplyTest, AFaultThatIsCutIsMalformed) {
    EXPECT_EQ(refusalOfGetID("r 01 00 f S 00 07 'message' S 00 02 'no'"),
              "Data stream truncated (too short for block header)");
}

TEST_F(ReplyTest, AFailureOfTheTransportReachesTheCaller) {
    agent->expectThenRaise("here", getID,
                           [] { throw invoke_exception("Failed to send request: cut"); });
    EXPECT_EQ(textOf<invoke_exception>([&] { activity->getID(); }), "Failed to send request: cut");
}

TEST_F(ReplyTest, AnyOtherExceptionReachesTheCallerToo) {
    agent->expectThenRaise("here", getID, [] { throw std::bad_alloc(); });
    EXPECT_THROW(activity->getID(), std::bad_alloc);
}

TEST_F(ReplyTest, MustBegin) {
    EXPECT_EQ(refusalOfGetID(""), "Not enough space to decode a reply");
    EXPECT_EQ(refusalOfGetID("r 01"), "Not enough space to decode a reply");
    EXPECT_EQ(refusalOfGetID("r 02 00 I 00 00 00 05 z"), "Not a reply start");
    EXPECT_EQ(refusalOfGetID("'<html>'"), "Not a reply start");
}

TEST_F(ReplyTest, MustHoldAValueOfTheResultsKind) {
    EXPECT_EQ(refusalOfGetID("r 01 00 L 00 00 00 00 00 00 00 05 z"), "Not an int32 value");
    EXPECT_EQ(refusalOfGetID("r 01 00 I 00 00 z"), "Not enough space to decode an int32");
}

TEST_F(ReplyTest, ANullStandsForNothingButAReference) {
    EXPECT_EQ(refusalOfGetID("r 01 00 N z"), "Not enough space to decode an int32");
    const auto refused = [&](std::string_view request, auto call) {
        expect(request,
               "r 01 00 N z z z z z z z z z z z z z z z z z z z z z z z z z z z z z z z z z z"
               " z z z z z z z z z z z z z z z z z z z z z z z z z z z z z z z");
        return textOf<hessianser::serialize_exception>(call);
    };
    const auto set = proxyAt<BackupSet>("here");
    EXPECT_EQ(refused(getID, [&] { activity->getID(); }), "Not an int32 value");
    EXPECT_EQ(refused("c 01 00 m 00 07 'getName' z", [&] { set->getName(); }),
              "Invalid data stream part - unexpected data block type");
    EXPECT_EQ(
        refused("c 01 00 m 00 13 'isUsingLocalStorage' z", [&] { set->isUsingLocalStorage(); }),
        "Not a bool value");
    EXPECT_EQ(refused("c 01 00 m 00 0B 'getDataType' z", [&] { set->getDataType(); }),
              "Not an int32 value");
    EXPECT_EQ(refused("c 01 00 m 00 10 'getCurrentStatus' z", [&] { set->getCurrentStatus(); }),
              "Not a map start");
    EXPECT_EQ(refused("c 01 00 m 00 0C 'backup_times' z", [&] { set->backup_times(); }),
              "Not a list value");
}

TEST_F(ReplyTest, MustEndBehindTheResult) {
    EXPECT_EQ(refusalOfGetID("r 01 00 I 00 00 00 05"), "Not enough space to read a reply end");
    EXPECT_EQ(refusalOfGetID("r 01 00 I 00 00 00 05 N"), "Not a remote call end");
}

TEST_F(ReplyTest, AnUnknownKeyFailsTheCall) {
    expect("c 01 00 m 00 11 'getTarnClientInfo' z",
           "r 01 00 V M t 00 1F 'com.norvel.api.tarn_client_info' S 00 04 'name' S 00 01 'a' S 00 "
           "04 'hint' S 00 01 'b' z z z");
    EXPECT_EQ(textOf<hessianser::serialize_exception>([&] { root->getTarnClientInfo(); }),
              "Unknown map field type");
}

TEST_F(ReplyTest, IsRefusedWhereverItIsCut) {
    const std::string whole = "r 01 00 V " + std::string(golden::backup_sessions) + " z z";
    std::size_t refusals = 0;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        // Only whole pieces of the notation can be left out; none of its texts contains a blank.
        if (whole[length] != ' ')
            continue;
        expect("c 01 00 m 00 0C 'backup_times' z", std::string_view(whole).substr(0, length));
        EXPECT_THROW(proxyAt<BackupSet>("here")->backup_times(), hessianser::serialize_exception)
            << whole.substr(0, length);
        ++refusals;
    }
    EXPECT_GT(refusals, 50u);
}

TEST_F(ReplyTest, AProxyStaysUsableBehindEveryFailure) {
    EXPECT_EQ(faultOfGetID("f S 00 07 'message' S 00 02 'no' z"), "no");
    EXPECT_EQ(refusalOfGetID("r 01 00 N z"), "Not enough space to decode an int32");
    agent->expectThenRaise("here", getID, [] { throw invoke_exception("cut"); });
    EXPECT_THROW(activity->getID(), invoke_exception);
    expect(getID, "r 01 00 I 00 00 00 05 z");
    EXPECT_EQ(activity->getID(), 5);
}

TEST_F(ReplyTest, BothKindsOfFailureAreStandardExceptions) {
    static_assert(std::is_base_of_v<std::exception, invoke_exception>);
    static_assert(std::is_base_of_v<std::exception, hessianser::serialize_exception>);
    expect(getID, "f S 00 07 'message' S 00 02 'no' z");
    EXPECT_EQ(textOf<std::exception>([&] { activity->getID(); }), "no");
}

TEST_F(ReplyTest, AnArgumentThatCannotBeWrittenSendsNothing) {
    EXPECT_EQ(textOf<hessianser::serialize_exception>(
                  [&] { proxyAt<BackupSet>("here")->setName("\xBF"); }),
              "Invalid UTF-8 character: continuation character at the beginning");
    EXPECT_EQ(agent->left(), 0u);
}

} // namespace
