// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/parse_url.h"

#include <gtest/gtest.h>

#include "transport/invoke_exception.h"

namespace {

struct Parts {
    bool useTls = false;
    std::string host;
    std::string path;
    std::uint32_t port = 0;

    bool operator==(const Parts&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Parts& parts) {
    return out << (parts.useTls ? "TLS " : "plain ") << parts.host << " | " << parts.port << " | "
               << parts.path;
}

Parts parse(const std::string& url) {
    Parts parts{true, "left over", "left over", 1};
    hessiancln::parseUrl(url, parts.useTls, parts.host, parts.path, parts.port);
    return parts;
}

std::string failureOf(const std::string& url) {
    try {
        parse(url);
        return "no failure";
    } catch (const hessiancln::invoke_exception& failure) {
        return failure.what();
    }
}

TEST(ParseUrl, SplitsAWholeUrl) {
    EXPECT_EQ(parse("https://agent:4411/api/1?x=/"), (Parts{true, "agent", "/api/1?x=/", 4411}));
    EXPECT_EQ(parse("http://10.0.0.1:80/api"), (Parts{false, "10.0.0.1", "/api", 80}));
}

TEST(ParseUrl, IgnoresTheCaseOfTheScheme) {
    EXPECT_EQ(parse("HTTPS://agent/x"), (Parts{true, "agent", "/x", 443}));
    EXPECT_EQ(parse("HtTp://Agent/x"), (Parts{false, "Agent", "/x", 80}));
}

TEST(ParseUrl, AnHttpsUrlWithoutPathOrPortHasPort443AndTheRoot) {
    EXPECT_EQ(parse("https://agent"), (Parts{true, "agent", "/", 443}));
}

TEST(ParseUrl, AnHttpUrlWithoutPathOrPortHasPort80AndTheRoot) {
    EXPECT_EQ(parse("http://agent"), (Parts{false, "agent", "/", 80}));
}

TEST(ParseUrl, AColonInThePathIsNoPort) {
    EXPECT_EQ(parse("http://agent/a:b"), (Parts{false, "agent", "/a:b", 80}));
}

TEST(ParseUrl, APortEndsAtTheFirstCharacterThatIsNoDigit) {
    EXPECT_EQ(parse("http://agent:81x/"), (Parts{false, "agent", "/", 81}));
}

TEST(ParseUrl, APortTooLargeDoesNotFoldIntoOneThatExists) {
    EXPECT_EQ(parse("http://agent:99999/").port, 99999u);
    EXPECT_GT(parse("http://agent:4294971707/").port, 65535u);
    EXPECT_GT(parse("http://agent:4294967296/").port, 65535u);
    EXPECT_GT(parse("http://agent:99999999999999999999/").port, 65535u);
    EXPECT_GT(parse("http://agent:-5/").port, 65535u);
}

TEST(ParseUrl, RefusesAPortOfZero) {
    EXPECT_EQ(failureOf("http://agent:0/api"), "Invalid port component in host 'agent:0'");
}

TEST(ParseUrl, RefusesAPortThatIsNoNumber) {
    EXPECT_EQ(failureOf("https://agent:x/api"), "Invalid port component in host 'agent:x'");
    EXPECT_EQ(failureOf("https://agent:"), "Invalid port component in host 'agent:'");
    EXPECT_EQ(failureOf("https://[::1]:4411/"), "Invalid port component in host '[::1]:4411'");
}

TEST(ParseUrl, RefusesOtherSchemes) {
    for (const std::string url :
         {"ftp://agent/", "", "http:/agent", "https:", "agent:4411", " http://a"})
        EXPECT_EQ(failureOf(url), "Invalid URL (does not start with http/https): '" + url + "'");
}

} // namespace
