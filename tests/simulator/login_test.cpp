// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/simulator/agent_test.h"

using namespace std::string_literals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

class Login : public AgentTest {
protected:
    std::string logInAs(std::string_view user, std::string_view password, std::int32_t flag = 1) {
        return post(raw::call("login", loginArguments(user, password, flag)));
    }

    void expectIn(const std::string& reply) {
        EXPECT_THAT(reply, HasSubstr("com.norvel.api.ClientConnection"));
        EXPECT_THAT(agent_->liveObjects(), SizeIs(1));
        EXPECT_THAT(agent_->violations(), IsEmpty());
    }

    /// Expects a refusal of a valid call.
    void expectRefused(const std::string& reply, const std::string& text) {
        EXPECT_EQ(reply, "r\x01\0"s + raw::fault("Refused", text));
        EXPECT_THAT(agent_->liveObjects(), IsEmpty());
        EXPECT_THAT(agent_->violations(), IsEmpty());
    }

    void expectViolation(const std::string& reply, const std::string& text) {
        EXPECT_THAT(reply, HasSubstr(text));
        EXPECT_THAT(agent_->liveObjects(), IsEmpty());
        EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr(text)));
    }
};

TEST_F(Login, LetsAGuestIn) {
    start();
    expectIn(logInAs("", "", 0));
}

TEST_F(Login, LetsAGuestInThroughTheDialog) {
    start();
    expectIn(logInAs("", "", 1));
}

TEST_F(Login, RefusesAGuestOnRequest) {
    start({.guest = false});
    expectRefused(logInAs("", "", 0), "A user name is needed to log in.");
}

TEST_F(Login, LetsTheUserIn) {
    start({.user = "anna", .password = "s3cret"});
    expectIn(logInAs("anna", "s3cret"));
}

TEST_F(Login, NeverLogsThePassword) {
    start({.user = "anna", .password = "s3cret"});
    logInAs("anna", "s3cret");
    EXPECT_THAT(agent_->callTexts(), ElementsAre("ClientConnection.login(\"" + agent_->baseUrl() +
                                                 "\", \"13.0.0.0\", \"anna\", ***, 1)"));
}

TEST_F(Login, RefusesAWrongPassword) {
    start({.user = "anna", .password = "s3cret"});
    expectRefused(logInAs("anna", "secret"), "Unknown user name or bad password.");
}

TEST_F(Login, RefusesAnotherUser) {
    start({.user = "anna", .password = "s3cret"});
    expectRefused(logInAs("otto", "s3cret"), "Unknown user name or bad password.");
}

TEST_F(Login, ReportsItsDomains) {
    start({.domains = {"OFFICE", "HOME"}});
    EXPECT_EQ(post(raw::call("getAvailableDomains")),
              raw::reply("V" + raw::text("OFFICE") + raw::text("HOME") + "z"));
}

TEST_F(Login, LetsAUserOfADomainIn) {
    start({.user = "anna", .password = "s3cret", .domains = {"OFFICE", "HOME"}});
    expectIn(logInAs("HOME\\anna", "s3cret"));
}

TEST_F(Login, LetsTheUserInWithoutADomain) {
    start({.user = "anna", .password = "s3cret", .domains = {"OFFICE"}});
    expectIn(logInAs("anna", "s3cret"));
}

TEST_F(Login, RefusesAnUnknownDomain) {
    start({.user = "anna", .password = "s3cret", .domains = {"OFFICE"}});
    expectRefused(logInAs("HOME\\anna", "s3cret"), "The domain 'HOME' isn't known.");
}

TEST_F(Login, RefusesAnotherVersion) {
    start();
    expectViolation(post(raw::call("login", raw::text(agent_->baseUrl()) + raw::text("14.2.0.0") +
                                                raw::text("") + raw::text("") + raw::int32(0))),
                    "version '14.2.0.0'");
}

TEST_F(Login, RefusesABaseUrlWithThePathOfTheEntry) {
    start();
    expectViolation(
        post(raw::call("login", raw::text(agent_->baseUrl() + "/api") + raw::text("13.0.0.0") +
                                    raw::text("") + raw::text("") + raw::int32(0))),
        "base URL");
}

TEST_F(Login, RefusesAnotherFlag) {
    start();
    expectViolation(logInAs("demo", "demo", 2), "login flag is 2");
}

TEST_F(Login, RefusesAUserWithTheFlagOfIntegratedLogon) {
    start();
    expectViolation(logInAs("demo", "demo", 0), "login flag 0");
}

TEST_F(Login, HandsOutUrlsUnderTheNameThatTheClientUses) {
    start();
    const std::string base = "https://localhost:" + std::to_string(agent_->port());
    std::string request =
        raw::post(agent_->port(), "/api",
                  raw::call("login", raw::text(base) + raw::text("13.0.0.0") + raw::text("") +
                                         raw::text("") + raw::int32(0)));
    request.replace(request.find("127.0.0.1"), 9, "localhost");
    EXPECT_THAT(raw::exchange(agent_->port(), true, request),
                HasSubstr(base + "/api/ClientConnection/1"));
}

TEST_F(Login, RefusesIntegratedLogonUnlessScripted) {
    start();
    expectRefused(post(raw::call("sspi_login", logonArguments("ab"))),
                  "Integrated logon isn't available on this agent.");
}

TEST_F(Login, CarriesTheTokensOfAnIntegratedLogon) {
    std::string received;
    simulator::Options options;
    options.integratedLogon = [&received](const std::string& token) {
        received = token;
        return simulator::LogonStep{"xyz", token == "ab", "anna", "OFFICE"};
    };
    start(options);
    const auto answer = [&](const std::string& conn) {
        return raw::reply("Mt\0\x1E"s + "com.norvel.api.sspi_login_info" + raw::text("context") +
                          "B\0\7\3\0\0\0xyz"s + raw::text("user") + raw::text("anna") +
                          raw::text("domain") + raw::text("OFFICE") + raw::text("conn") + conn +
                          "z");
    };
    EXPECT_EQ(post(raw::call("sspi_login", logonArguments("a"))), answer("N"));
    EXPECT_EQ(received, "a");
    EXPECT_EQ(post(raw::call("sspi_login", logonArguments("ab"))),
              answer(raw::remote("com.norvel.api.ClientConnection",
                                 agent_->baseUrl() + "/api/ClientConnection/1")));
    EXPECT_THAT(agent_->liveObjects(), SizeIs(1));
}

TEST_F(Login, RefusesATokenShorterThanItsLength) {
    start();
    expectViolation(post(raw::call("sspi_login", logonArgumentsWith("\3\0\0\0ab"s))),
                    "announces 3 of 2 bytes");
}

TEST_F(Login, RefusesATokenWithoutALength) {
    start();
    expectViolation(post(raw::call("sspi_login", logonArgumentsWith("ab"))), "no length");
}

} // namespace
