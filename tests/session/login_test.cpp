// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/client_connection.h"
#include "session/integrated_logon.h"
#include "session/text.h"
#include "tests/session/agent_fixture.h"
#include "tests/support/scripted_security_operations.h"
#include "tests/support/security_operations_override.h"
#include "tests/support/system/process.h"
#include "transport/invoke_exception.h"

namespace {

using hessiancln::invoke_exception;
using hessianser::serialize_exception;
using session_tests::textOf;
using simulator::Options;
using testing::ElementsAre;
using testing::IsEmpty;

class Login : public session_tests::AgentTest {
protected:
    using AgentTest::AgentTest;
};

TEST_F(Login, AsksForTheKindAndLogsInThenMovesToTheStream) {
    logIn();
    EXPECT_THAT(agent.callTexts(), ElementsAre(askKind, loginText("demo")));
    EXPECT_TRUE(session::connectedToAgent());
    EXPECT_EQ(session::currentUser(), "demo");
    expectStoredKind(8, true, false);

    // A call of a session's object over HTTP would be a violation.
    EXPECT_FALSE(session::getConnection()->getTarnClientInfo().empty());
    EXPECT_THAT(agent.callTexts(),
                ElementsAre(askKind, loginText("demo"), "ClientConnection.getTarnClientInfo()"));
}

TEST_F(Login, WithAWrongPasswordShowsTheAgentsText) {
    EXPECT_EQ(textOf<invoke_exception>(
                  [this] { session::connectToAgent(agent.address(), "demo", "guess", 1); }),
              "Unknown user name or bad password.");
    EXPECT_THAT(agent.callTexts(), ElementsAre(askKind, loginText("demo")));
    expectNoSession();
    expectStoredKind(8, true, false);
}

TEST_F(Login, AfterAFailedOneSucceeds) {
    EXPECT_THROW(session::connectToAgent(agent.address(), "demo", "guess", 1), invoke_exception);
    logIn();
    EXPECT_TRUE(session::connectedToAgent());
    EXPECT_EQ(session::currentUser(), "demo");
}

TEST_F(Login, WithoutAUserAndASecurityInterfaceIsThatOfAGuest) {
    const support::SecurityOperationsOverride none(nullptr);
    session::connectToAgent(agent.address(), "", "", 0);
    EXPECT_THAT(agent.callTexts(),
                ElementsAre(askKind, "ClientConnection.login(\"" + agent.baseUrl() +
                                         "\", \"13.0.0.0\", \"\", ***, 0)"));
    EXPECT_TRUE(session::connectedToAgent());
    EXPECT_EQ(session::currentUser(), "");
}

TEST_F(Login, ToAnAgentThatAnswersNullEndsWithoutASession) {
    agent.inject("login", simulator::NullResult{});
    logIn();
    expectNoSession();
}

TEST_F(Login, CutInTheMiddleOfTheReplyRaises) {
    agent.inject("login", simulator::CutWithin{60});
    EXPECT_NE(textOf<invoke_exception>([this] { logIn(); }), "");
    expectNoSession();
    expectStoredKind(8, true, false);
}

TEST_F(Login, CutBeforeTheKindRaises) {
    agent.inject("getTarnClientType", simulator::CutBefore{});
    EXPECT_NE(textOf<invoke_exception>([this] { logIn(); }), "");
    expectNoSession();
    expectUntouchedKind();
}

TEST_F(Login, WithAnErrorStatusShowsIt) {
    agent.inject("login", simulator::HttpError{503, "Service Unavailable"});
    EXPECT_EQ(textOf<invoke_exception>([this] { logIn(); }),
              "Server returned status code 503 (Service Unavailable)");
    expectNoSession();
}

TEST_F(Login, WithAFaultWithoutReplyHeadShowsItsText) {
    agent.inject("login", simulator::Fault{"The agent is shutting down.", "Busy", false});
    EXPECT_EQ(textOf<invoke_exception>([this] { logIn(); }), "The agent is shutting down.");
    expectNoSession();
}

struct RefusedKind {
    std::int32_t type;
    const char* text;
};

void PrintTo(const RefusedKind& kind, std::ostream* out) {
    *out << kind.type;
}

class LoginOfARefusedKind : public session_tests::AgentTest,
                            public testing::WithParamInterface<RefusedKind> {};

TEST_P(LoginOfARefusedKind, IsKnownByName) {
    setClientType(GetParam().type);
    EXPECT_EQ(textOf<serialize_exception>([this] { logIn(); }), GetParam().text);
    EXPECT_THAT(agent.callTexts(), ElementsAre(askKind)) << "Nothing follows a refusal";
    expectNoSession();
    expectStoredKind(GetParam().type, false, false);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, LoginOfARefusedKind,
    testing::Values(
        RefusedKind{0, "It is not allowed to connect to Unknown Tarn-Client using Tarn-Mobile "
                       "User."},
        RefusedKind{1, "It is not allowed to connect to Tarn-Client Full using Tarn-Mobile User."},
        RefusedKind{2, "It is not allowed to connect to Unknown Tarn-Client using Tarn-Mobile "
                       "User."},
        RefusedKind{3, "It is not allowed to connect to Linux Tarn-Client using Tarn-Mobile User."},
        RefusedKind{4, "It is not allowed to connect to Mac Client using Tarn-Mobile User."},
        RefusedKind{5, "It is not allowed to connect to Tarn-Client Full using Tarn-Mobile User."},
        RefusedKind{6, "It is not allowed to connect to Linux Tarn-Client using Tarn-Mobile User."},
        RefusedKind{7, "It is not allowed to connect to Mac Client using Tarn-Mobile User."},
        RefusedKind{10, "It is not allowed to connect to Tarn-Consumer Client using Tarn-Mobile "
                        "User."},
        RefusedKind{11, "It is not allowed to connect to Tarn-Consumer Client using Tarn-Mobile "
                        "User."},
        RefusedKind{12,
                    "It is not allowed to connect to Orbit Tarn-Client using Tarn-Mobile User."},
        RefusedKind{13,
                    "It is not allowed to connect to Orbit Tarn-Client using Tarn-Mobile User."},
        RefusedKind{15, "It is not allowed to connect to Unknown Tarn-Client using Tarn-Mobile "
                        "User."},
        RefusedKind{-1, "It is not allowed to connect to Unknown Tarn-Client using Tarn-Mobile "
                        "User."}));

struct AdmittedKind {
    std::int32_t type;
    bool mobile;
    bool notebook;
};

void PrintTo(const AdmittedKind& kind, std::ostream* out) {
    *out << kind.type;
}

class LoginOfAnAdmittedKind : public session_tests::AgentTest,
                              public testing::WithParamInterface<AdmittedKind> {};

TEST_P(LoginOfAnAdmittedKind, StoresIt) {
    setClientType(GetParam().type);
    logIn();
    EXPECT_TRUE(session::connectedToAgent());
    expectStoredKind(GetParam().type, GetParam().mobile, GetParam().notebook);
}

INSTANTIATE_TEST_SUITE_P(Kinds, LoginOfAnAdmittedKind,
                         testing::Values(AdmittedKind{8, true, false}, AdmittedKind{9, true, false},
                                         AdmittedKind{14, false, true}));

class LoginWithDomains : public session_tests::AgentTest {
protected:
    LoginWithDomains()
        : AgentTest(withDomains()) {}

    static Options withDomains() {
        Options options;
        options.domains = {"OFFICE", "HOME"};
        return options;
    }
};

TEST_F(LoginWithDomains, OffersThemInTheAgentsOrder) {
    const QStringList domains = session::readDomainList(agent.address());
    EXPECT_EQ(domains, QStringList({QStringLiteral("OFFICE"), QStringLiteral("HOME")}));
    EXPECT_THAT(agent.callTexts(), ElementsAre("ClientConnection.getAvailableDomains()"));
    expectNoSession();
}

TEST_F(LoginWithDomains, SendsTheDomainWithTheUser) {
    session::connectToAgent(agent.address(), "OFFICE\\demo", "demo", 1);
    EXPECT_EQ(session::currentUser(), "OFFICE\\demo");
}

TEST_F(LoginWithDomains, OffersNoneWhenTheListIsRefused) {
    agent.inject("getAvailableDomains", simulator::Fault{"No directory service"});
    EXPECT_TRUE(session::readDomainList(agent.address()).isEmpty());
}

TEST_F(LoginWithDomains, ReadsAListWithTypeAndLength) {
    agent.inject("getAvailableDomains", simulator::ListsWithTypeAndLength{});
    EXPECT_EQ(session::readDomainList(agent.address()).size(), 2);
}

class PlainLogin : public session_tests::AgentTest {
protected:
    PlainLogin()
        : AgentTest(withoutTls()) {}

    static Options withoutTls() {
        Options options;
        options.plain = true;
        return options;
    }
};

TEST_F(PlainLogin, KeepsTheSchemeForTheStream) {
    session::connectToAgent(agent.baseUrl(), "demo", "demo", 1);
    EXPECT_FALSE(session::getConnection()->getTarnClientInfo().empty());
}

/// An agent that needs two tokens before it lets the user in.
class IntegratedLogin : public session_tests::AgentTest {
protected:
    IntegratedLogin()
        : AgentTest(withTwoSteps()) {
        system.maxTokenSize = 20;
        system.rounds = {{platform::securityContinueNeeded, bytesOf("first")},
                         {platform::securityOk, bytesOf("second")}};
    }

    static Options withTwoSteps() {
        Options options;
        options.guest = false;
        options.integratedLogon = [](const std::string& token) {
            return simulator::LogonStep{"answer to " + token, token == "second", "anna", "OFFICE"};
        };
        return options;
    }

    static std::vector<std::uint8_t> bytesOf(const std::string& text) {
        return {text.begin(), text.end()};
    }

    std::string stepText(int size) const {
        return "ClientConnection.sspi_login(\"" + agent.baseUrl() + "\", \"13.0.0.0\", <" +
               std::to_string(size) + " bytes>)";
    }

    support::ScriptedSecurityOperations system;
    support::SecurityOperationsOverride inUse{&system};
};

TEST_F(IntegratedLogin, GoesThroughTheRoundsAndMovesToTheStream) {
    session::connectToAgent(agent.address(), "", "ignored", 0);
    EXPECT_THAT(agent.callTexts(), ElementsAre(askKind, stepText(9), stepText(10)));
    EXPECT_EQ(system.asked[1].input, bytesOf(std::string("answer to first\0\0\0\0\0", 20)));
    EXPECT_TRUE(session::connectedToAgent());
    EXPECT_EQ(session::currentUser(), support::process::accountName());
    EXPECT_FALSE(session::getConnection()->getTarnClientInfo().empty());
}

TEST_F(IntegratedLogin, RefusedByTheAgentShowsItsText) {
    agent.inject("sspi_login", simulator::Fault{"The account is locked."});
    EXPECT_EQ(
        textOf<invoke_exception>([this] { session::connectToAgent(agent.address(), "", "", 0); }),
        "The account is locked.");
    expectNoSession();
}

TEST_F(IntegratedLogin, WithAnUnknownKeyInTheAnswerRaises) {
    agent.inject("sspi_login", simulator::UnknownKey{});
    EXPECT_EQ(textOf<serialize_exception>(
                  [this] { session::connectToAgent(agent.address(), "", "", 0); }),
              "Unknown map field type");
    expectNoSession();
}

TEST_F(IntegratedLogin, TakesTheAnswersKeysInAnyOrder) {
    agent.inject("sspi_login", simulator::ReversedKeys{});
    session::connectToAgent(agent.address(), "", "", 0);
    EXPECT_TRUE(session::connectedToAgent());
}

TEST_F(IntegratedLogin, ThatFailsInALaterRoundRaisesNothing) {
    system.rounds[1].status = -1;
    session::connectToAgent(agent.address(), "", "", 0);
    EXPECT_THAT(agent.callTexts(), ElementsAre(askKind, stepText(9)));
    expectNoSession();
}

} // namespace
