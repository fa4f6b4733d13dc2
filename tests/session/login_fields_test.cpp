// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/login_fields.h"

#include <gtest/gtest.h>

#include "session/text.h"

// Results are compared as UTF-8, which a failure prints legibly.
namespace {

using session::fromWire;
using session::toWire;

std::string address(const char* userText) {
    return toWire(session::agentAddressOf(fromWire(userText)));
}

std::string host(const char* agentAddress) {
    return toWire(session::hostForDisplay(fromWire(agentAddress)));
}

std::string user(const char* userText, bool asCurrentUser, std::optional<QString> domain) {
    return toWire(session::loginUserOf(fromWire(userText), asCurrentUser, domain));
}

const std::optional<QString> noDomain;
const std::optional<QString> office = QStringLiteral("OFFICE");

TEST(AgentAddress, IsThisMachineWithoutAColon) {
    EXPECT_EQ(address("anna"), "127.0.0.1:4411");
    EXPECT_EQ(address(""), "127.0.0.1:4411");
}

TEST(AgentAddress, IsAllBehindTheFirstColon) {
    EXPECT_EQ(address("anna:backup.lan"), "backup.lan");
    EXPECT_EQ(address("anna:backup.lan:99"), "backup.lan:99");
}

TEST(AgentAddress, KeepsASchemeAndAPortOfItsOwn) {
    EXPECT_EQ(address("anna:http://backup.lan:99"), "http://backup.lan:99");
}

TEST(AgentAddress, IsEmptyBehindALastColon) {
    EXPECT_EQ(address("anna:"), "");
}

TEST(AgentAddress, LosesBlanksAroundItAndOneSlashAtItsEnd) {
    EXPECT_EQ(address("anna: backup.lan "), "backup.lan");
    EXPECT_EQ(address("anna:\tbackup.lan:99\t"), "backup.lan:99");
    EXPECT_EQ(address("anna:https://backup.lan:99/"), "https://backup.lan:99");
    EXPECT_EQ(address("anna:backup.lan/ "), "backup.lan");
    EXPECT_EQ(address("anna: "), "");
}

TEST(AgentAddress, KeepsWhatIsMoreThanASlash) {
    EXPECT_EQ(address("anna:http://"), "http://");
    EXPECT_EQ(address("anna:backup.lan/api"), "backup.lan/api");
}

TEST(AgentAddress, NeedsNoUserBeforeIt) {
    EXPECT_EQ(address(":backup.lan"), "backup.lan");
}

std::string portProblem(const char* agentAddress) {
    try {
        session::checkPort(fromWire(agentAddress));
        return {};
    } catch (const std::invalid_argument& problem) {
        return problem.what();
    }
}

TEST(AgentPort, IsOneThatAHostMayHave) {
    for (const char* address : {"a:1", "a:65535", "a", "", "http://a", "https://a:4411/x:99999"})
        EXPECT_EQ(portProblem(address), "") << address;
}

TEST(AgentPort, OutsideItsRangeIsRefused) {
    EXPECT_EQ(portProblem("a:0"), "Invalid port component in host 'a:0'");
    EXPECT_EQ(portProblem("https://a:65536"), "Invalid port component in host 'a:65536'");
    EXPECT_EQ(portProblem("a:-5"), "Invalid port component in host 'a:-5'");
    EXPECT_EQ(portProblem("a:4294971707/"), "Invalid port component in host 'a:4294971707'");
    EXPECT_EQ(portProblem("a:99999999999999999999"),
              "Invalid port component in host 'a:99999999999999999999'");
}

TEST(AgentPort, IsANumber) {
    for (const char* host : {"a:", "a:x", "a:70000x", "a:4411x", "a:+80", "a: 80", "[::1]:4411"})
        EXPECT_EQ(portProblem(host), "Invalid port component in host '" + std::string(host) + "'");
}

TEST(HostForDisplay, LosesThePort) {
    EXPECT_EQ(host("127.0.0.1:4411"), "127.0.0.1");
    EXPECT_EQ(host("backup.lan:99"), "backup.lan");
}

TEST(HostForDisplay, LosesEitherScheme) {
    EXPECT_EQ(host("http://backup.lan:99"), "backup.lan");
    EXPECT_EQ(host("https://backup.lan:99"), "backup.lan");
    EXPECT_EQ(host("https://backup.lan"), "backup.lan");
}

TEST(HostForDisplay, LosesOneSchemeOnly) {
    EXPECT_EQ(host("http://https://backup.lan"), "https");
}

TEST(HostForDisplay, KeepsASchemeInUpperCase) {
    EXPECT_EQ(host("HTTP://backup.lan:99"), "HTTP://backup.lan");
}

TEST(HostForDisplay, IsTheAddressWithoutAColon) {
    EXPECT_EQ(host("backup.lan"), "backup.lan");
    EXPECT_EQ(host(""), "");
}

TEST(HostForDisplay, IsCutAtTheLastColon) {
    EXPECT_EQ(host("[::1]:4411"), "[::1]");
}

TEST(HostForDisplay, IsNotCutAtAColonInFront) {
    EXPECT_EQ(host(":99"), ":99");
    EXPECT_EQ(host("http://:99"), ":99");
}

TEST(HostForDisplay, IsCutAtAColonBehindOneCharacter) {
    EXPECT_EQ(host("a:1"), "a");
}

TEST(LoginUser, IsTheWholeTextWithoutAColon) {
    EXPECT_EQ(user("anna", false, noDomain), "anna");
}

TEST(LoginUser, IsTheTextBeforeTheFirstColon) {
    EXPECT_EQ(user("anna:backup.lan:99", false, noDomain), "anna");
}

TEST(LoginUser, MayBeEmpty) {
    EXPECT_EQ(user("", false, noDomain), "");
    EXPECT_EQ(user(":backup.lan", false, noDomain), "");
}

TEST(LoginUser, StaysEmptyWithADomain) {
    EXPECT_EQ(user("", false, office), "");
    EXPECT_EQ(user(":backup.lan", false, office), "");
}

TEST(LoginUser, GetsTheDomainInFrontOfAPlainName) {
    EXPECT_EQ(user("anna", false, office), "OFFICE\\anna");
}

TEST(LoginUser, GetsTheDomainButNotTheAddress) {
    EXPECT_EQ(user("anna:backup.lan", false, office), "OFFICE\\anna");
}

TEST(LoginUser, ALeadingBackslashMeansNoDomain) {
    EXPECT_EQ(user("\\anna", false, office), "anna");
}

TEST(LoginUser, ALeadingBackslashHidesALaterOne) {
    EXPECT_EQ(user("\\HOME\\anna", false, office), "HOME\\anna");
}

TEST(LoginUser, ABackslashAloneIsNobody) {
    EXPECT_EQ(user("\\", false, office), "");
}

TEST(LoginUser, KeepsADomainOfItsOwn) {
    EXPECT_EQ(user("HOME\\anna", false, office), "HOME\\anna");
}

TEST(LoginUser, ABackslashInTheAddressIsNoDomain) {
    EXPECT_EQ(user("anna:a\\b", false, office), "OFFICE\\anna");
}

TEST(LoginUser, AsCurrentUserGetsNoDomain) {
    EXPECT_EQ(user("anna", true, office), "anna");
    EXPECT_EQ(user("\\anna", true, office), "\\anna");
}

TEST(LoginUser, WithoutDomainsKeepsItsBackslashes) {
    EXPECT_EQ(user("\\anna", false, noDomain), "\\anna");
    EXPECT_EQ(user("HOME\\anna", false, noDomain), "HOME\\anna");
}

TEST(LoginUser, AnEmptyChoiceOfDomainIsADomain) {
    EXPECT_EQ(user("anna", false, QString()), "\\anna");
}

} // namespace
