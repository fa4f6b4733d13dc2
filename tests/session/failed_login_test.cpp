// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "session/connection.h"
#include "session/integrated_logon.h"
#include "tests/session/session_fixture.h"
#include "tests/session/web_server.h"
#include "tests/support/bytes.h"
#include "tests/support/scripted_security_operations.h"
#include "tests/support/security_operations_override.h"
#include "tests/support/system/failures.h"
#include "transport/invoke_exception.h"

// Servers that aren't agents, and agents with malformed replies. Replies are typed by hand.
namespace {

using hessiancln::invoke_exception;
using hessianser::serialize_exception;
using session_tests::textOf;
using session_tests::webPage;
using session_tests::WebServer;
using support::bytes;
using support::closedPort;
using support::LoopbackServer;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

const std::string askKind = "c 01 00 m 00 11 'getTarnClientType' z";
const std::string mobileKind = "r 01 00 I 00 00 00 08 z";

class FailedLogin : public session_tests::SessionTest {
protected:
    template <class Failure>
    static std::string loginAt(const std::string& address) {
        return textOf<Failure>([&] { session::connectToAgent(address, "anna", "secret", 1); });
    }
};

/// A server that answers the first call with one message and all later ones with another.
WebServer::Handler answers(const std::string& first, const std::string& later) {
    return [first, later, calls = 0](const std::string&) mutable {
        return webPage(bytes(calls++ == 0 ? first : later));
    };
}

TEST_F(FailedLogin, AtAClosedPort) {
    const std::string port = std::to_string(closedPort());
    EXPECT_EQ(loginAt<invoke_exception>("127.0.0.1:" + port),
              "Failed to connect to '127.0.0.1' on port " + port + ". O/S error " +
                  support::failures::refused().reported());
    expectNoSession();
    expectUntouchedKind();
}

TEST_F(FailedLogin, AtAHostThatNobodyKnows) {
    EXPECT_THAT(loginAt<invoke_exception>("no-such-host.invalid"),
                StartsWith("Failed to connect to 'no-such-host.invalid' on port 4411. O/S error "));
    expectNoSession();
    expectUntouchedKind();
}

TEST_F(FailedLogin, AtAPortThatIsNoNumber) {
    EXPECT_EQ(loginAt<invoke_exception>("127.0.0.1:backup"),
              "Invalid port component in host '127.0.0.1:backup'");
    expectNoSession();
}

TEST_F(FailedLogin, AtPortZero) {
    EXPECT_EQ(loginAt<invoke_exception>("127.0.0.1:0"),
              "Invalid port component in host '127.0.0.1:0'");
    expectNoSession();
}

TEST_F(FailedLogin, AtAPlainServerBehindHttps) {
    LoopbackServer server(LoopbackServer::Mode::plain, [](support::Peer& peer) {
        peer.receive(1);
        peer.send("HTTP/1.1 400 Bad Request\r\nContent-Length: 0\r\n\r\n").close();
    });
    const std::string text =
        loginAt<invoke_exception>("https://127.0.0.1:" + std::to_string(server.port()));
    EXPECT_THAT(text, StartsWith("SSL Handshake failed. Error "));
    EXPECT_THAT(text, HasSubstr("wrong version number"));
    expectNoSession();
    expectUntouchedKind();
}

TEST_F(FailedLogin, AtAWebServerWithoutTheEntryPoint) {
    WebServer server([](const std::string&) {
        return "HTTP/1.1 404 Not Found\r\nContent-Length: 9\r\n\r\nNot found";
    });
    EXPECT_EQ(loginAt<invoke_exception>(server.url()),
              "Server returned status code 404 (Not Found)");
    EXPECT_THAT(server.requestLines(), ElementsAre("POST /api HTTP/1.1"));
    expectNoSession();
    expectUntouchedKind();
}

TEST_F(FailedLogin, AtAWebServerThatShowsAPage) {
    WebServer server([](const std::string&) { return webPage("<html>Welcome</html>"); });
    EXPECT_EQ(loginAt<serialize_exception>(server.url()), "Not a reply start");
    expectNoSession();
    expectUntouchedKind();
}

TEST_F(FailedLogin, AtAWebServerThatShowsNothing) {
    WebServer server([](const std::string&) { return webPage(""); });
    EXPECT_EQ(loginAt<serialize_exception>(server.url()), "Not enough space to decode a reply");
    expectNoSession();
}

TEST_F(FailedLogin, AtAServerThatHangsUp) {
    WebServer server([](const std::string&) { return std::string(); });
    EXPECT_NE(loginAt<invoke_exception>(server.url()), "");
    expectNoSession();
    expectUntouchedKind();
}

TEST_F(FailedLogin, WithAFaultBehindAnErrorStatusReportsTheStatus) {
    WebServer server([](const std::string&) {
        const std::string fault = bytes("f S 00 07 'message' S 00 02 'hi' z");
        return "HTTP/1.1 500 Internal Server Error\r\nContent-Length: " +
               std::to_string(fault.size()) + "\r\n\r\n" + fault;
    });
    EXPECT_EQ(loginAt<invoke_exception>(server.url()),
              "Server returned status code 500 (Internal Server Error)");
    expectNoSession();
}

TEST_F(FailedLogin, WithAKindThatIsNoNumber) {
    WebServer server(answers("r 01 00 S 00 01 '8' z", mobileKind));
    EXPECT_EQ(loginAt<serialize_exception>(server.url()), "Not an int32 value");
    EXPECT_THAT(server.bodies(), SizeIs(1));
    expectNoSession();
    expectUntouchedKind();
}

TEST_F(FailedLogin, WithAFaultInPlaceOfTheKind) {
    WebServer server(answers("f S 00 07 'message' S 00 07 'Go away' z", mobileKind));
    EXPECT_EQ(loginAt<invoke_exception>(server.url()), "Go away");
    expectNoSession();
    expectUntouchedKind();
}

TEST_F(FailedLogin, WithARefusedKindStaysVisible) {
    WebServer server(answers("r 01 00 I 00 00 00 07 z", mobileKind));
    EXPECT_EQ(loginAt<serialize_exception>(server.url()),
              "It is not allowed to connect to Mac Client using Tarn-Mobile User.");
    EXPECT_THAT(server.bodies(), ElementsAre(bytes(askKind))) << "Nothing follows a refusal";
    expectNoSession();
    expectStoredKind(7, false, false);
}

TEST_F(FailedLogin, KeepsTheKindThatTheAgentSent) {
    WebServer server(answers("r 01 00 I 00 00 00 0E z", "f z"));
    EXPECT_EQ(loginAt<invoke_exception>(server.url()), "<Message could not be parsed>");
    expectNoSession();
    expectStoredKind(14, false, true);
}

TEST_F(FailedLogin, WithTheTextOfTheAgentsFault) {
    WebServer server(answers(mobileKind, "r 01 00 f S 00 04 'code' S 00 01 '3' S 00 07 'message' "
                                         "S 00 0E 'Wrong password' z"));
    EXPECT_EQ(loginAt<invoke_exception>(server.url()), "Wrong password");
    expectNoSession();
    expectStoredKind(8, true, false);
}

TEST_F(FailedLogin, WithoutARootObjectRaisesNothing) {
    WebServer server(answers(mobileKind, "r 01 00 N z"));
    session::connectToAgent(server.url(), "anna", "secret", 1);
    expectNoSession();
    expectStoredKind(8, true, false);
}

TEST_F(FailedLogin, HoldsTheMutexThroughTheRemoteCalls) {
    std::vector<bool> free;
    WebServer server([&free](const std::string&) {
        const bool taken = session::g_connectionMutex.try_lock();
        if (taken)
            session::g_connectionMutex.unlock();
        free.push_back(taken);
        return webPage(bytes(free.size() == 1 ? mobileKind : "f z"));
    });
    loginAt<invoke_exception>(server.url());
    EXPECT_THAT(free, ElementsAre(false, false));
    expectNoSession();
}

struct Garbage {
    const char* name;
    const char* reply;
    const char* text;
};

void PrintTo(const Garbage& garbage, std::ostream* out) {
    *out << garbage.reply;
}

class GarbageForALogin : public session_tests::SessionTest,
                         public testing::WithParamInterface<Garbage> {};

TEST_P(GarbageForALogin, IsRefusedWithItsText) {
    WebServer server(answers(mobileKind, GetParam().reply));
    EXPECT_EQ(textOf<serialize_exception>(
                  [&] { session::connectToAgent(server.url(), "anna", "secret", 1); }),
              GetParam().text);
    expectNoSession();
    expectStoredKind(8, true, false);
}

INSTANTIATE_TEST_SUITE_P(
    Replies, GarbageForALogin,
    testing::Values(Garbage{"Short", "r 01", "Not enough space to decode a reply"},
                    Garbage{"HeadOnly", "r 01 00", "Not enough space to decode a remote"},
                    Garbage{"OtherVersion", "r 02 00 N z", "Not a reply start"},
                    Garbage{"Number", "r 01 00 I 00 00 00 01 z", "Not a remote object"},
                    Garbage{"NoEnd", "r 01 00 N", "Not enough space to read a reply end"},
                    Garbage{"OtherEnd", "r 01 00 N N", "Not a remote call end"},
                    Garbage{"LyingLength", "r 01 00 r S FF FF 'x' z",
                            "Data stream truncated (block contents truncated)"}),
    [](const auto& row) { return std::string(row.param.name); });

/// The bytes of a string of fewer than 256 characters.
std::string wireString(const std::string& text) {
    return bytes("S 00") + static_cast<char>(text.size()) + text;
}

TEST_F(FailedLogin, SendsTheKindQuestionThenTheLoginToTheEntryPoint) {
    WebServer server(answers(mobileKind, "f z"));
    loginAt<invoke_exception>(server.url());
    const std::string login = bytes("c 01 00 m 00 05 'login'") + wireString(server.url()) +
                              bytes("S 00 08 '13.0.0.0' S 00 04 'anna' S 00 06 'secret' "
                                    "I 00 00 00 01 z");
    EXPECT_THAT(server.bodies(), ElementsAre(bytes(askKind), login));
    EXPECT_THAT(server.requestLines(), ElementsAre("POST /api HTTP/1.1", "POST /api HTTP/1.1"));
}

TEST_F(FailedLogin, SendsTextAsUtf8) {
    WebServer server(answers(mobileKind, "f z"));
    EXPECT_THROW(session::connectToAgent(server.url(), "\xC3\xA4", "\xE2\x82\xAC", 1),
                 invoke_exception);
    const std::string login =
        bytes("c 01 00 m 00 05 'login'") + wireString(server.url()) +
        bytes("S 00 08 '13.0.0.0' S 00 01 C3 A4 S 00 01 E2 82 AC I 00 00 00 01 z");
    ASSERT_THAT(server.bodies(), SizeIs(2));
    EXPECT_EQ(server.bodies()[1], login);
}

TEST_F(FailedLogin, WithoutAUserAndASecurityInterfaceSendsAnEmptyLogin) {
    const support::SecurityOperationsOverride none(nullptr);
    WebServer server(answers(mobileKind, "f z"));
    EXPECT_THROW(session::connectToAgent(server.url(), "", "", 0), invoke_exception);
    const std::string login = bytes("c 01 00 m 00 05 'login'") + wireString(server.url()) +
                              bytes("S 00 08 '13.0.0.0' S 00 00 S 00 00 I 00 00 00 00 z");
    ASSERT_THAT(server.bodies(), SizeIs(2));
    EXPECT_EQ(server.bodies()[1], login);
}

class FailedIntegratedLogin : public session_tests::SessionTest {
protected:
    support::ScriptedSecurityOperations system;
    support::SecurityOperationsOverride inUse{&system};
};

TEST_F(FailedIntegratedLogin, InsideTheSystemRaisesNothing) {
    WebServer server(answers(mobileKind, "f z"));
    session::connectToAgent(server.url(), "", "", 0);
    EXPECT_THAT(server.bodies(), ElementsAre(bytes(askKind)));
    EXPECT_THAT(system.operations, ElementsAre("query", "acquire", "round"));
    expectNoSession();
    expectStoredKind(8, true, false);
}

TEST_F(FailedIntegratedLogin, IsTakenForAnEmptyUserAndIgnoresThePassword) {
    system.rounds = {{platform::securityOk, {0xAA}}};
    WebServer server(answers(mobileKind, "f S 00 07 'message' S 00 02 'No' z"));
    EXPECT_EQ(
        textOf<invoke_exception>([&] { session::connectToAgent(server.url(), "", "secret", 1); }),
        "No");
    const std::string step = bytes("c 01 00 m 00 0A 'sspi_login'") + wireString(server.url()) +
                             bytes("S 00 08 '13.0.0.0' B 00 05 01 00 00 00 AA z");
    EXPECT_THAT(server.bodies(), ElementsAre(bytes(askKind), step));
    expectNoSession();
}

TEST_F(FailedIntegratedLogin, ThatCompletesWithoutASessionRaisesNothing) {
    system.rounds = {{platform::securityOk, {}}};
    WebServer server(answers(mobileKind, "f z"));
    session::connectToAgent(server.url(), "", "", 0);
    EXPECT_THAT(server.bodies(), ElementsAre(bytes(askKind)));
    expectNoSession();
}

TEST_F(FailedIntegratedLogin, IsNotTakenWithAUser) {
    WebServer server(answers(mobileKind, "f z"));
    EXPECT_THROW(session::connectToAgent(server.url(), "anna", "", 1), invoke_exception);
    EXPECT_THAT(system.operations, IsEmpty());
}

TEST_F(FailedIntegratedLogin, IsNotTriedWithARefusedKind) {
    WebServer server(answers("r 01 00 I 00 00 00 02 z", "f z"));
    EXPECT_EQ(
        textOf<serialize_exception>([&] { session::connectToAgent(server.url(), "", "", 0); }),
        "It is not allowed to connect to Unknown Tarn-Client using Tarn-Mobile User.");
    EXPECT_THAT(system.operations, IsEmpty());
    expectNoSession();
}

} // namespace
