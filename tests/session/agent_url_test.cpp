// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/agent_url.h"

#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace {

struct Row {
    const char* name;
    std::string address;
    std::string base;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.address;
}

class AgentUrl : public testing::TestWithParam<Row> {};

TEST_P(AgentUrl, IsCompleted) {
    std::string api = "left over";
    std::string base = "left over";
    session::normalizeAgentUrl(GetParam().address, api, base);
    EXPECT_EQ(base, GetParam().base);
    EXPECT_EQ(api, GetParam().base + "/api");
}

INSTANTIATE_TEST_SUITE_P(
    Addresses, AgentUrl,
    testing::Values(Row{"DefaultAddress", "127.0.0.1:4411", "https://127.0.0.1:4411"},
                    Row{"BareHostGetsBothDefaults", "backup.lan", "https://backup.lan:4411"},
                    Row{"BareHostKeepsItsPort", "backup.lan:99", "https://backup.lan:99"},
                    Row{"HttpKeepsItsSchemeAndGetsThePort", "http://backup.lan",
                        "http://backup.lan:4411"},
                    Row{"HttpKeepsItsPort", "http://backup.lan:80", "http://backup.lan:80"},
                    Row{"HttpsGetsThePort", "https://backup.lan", "https://backup.lan:4411"},
                    Row{"HttpsKeepsItsPort", "https://backup.lan:443", "https://backup.lan:443"},
                    Row{"OneLetterHostKeepsItsPort", "a:1", "https://a:1"},
                    Row{"OneLetterHostOverHttpKeepsItsPort", "http://a:1", "http://a:1"},
                    Row{"OneLetterHostGetsThePort", "http://a", "http://a:4411"},
                    Row{"SchemeInUpperCaseIsNoScheme", "HTTP://a", "https://HTTP://a"},
                    Row{"AnotherSchemeIsNoScheme", "ftp://a", "https://ftp://a"},
                    Row{"ColonAtIndexSevenOfHttpCounts", "http://:1", "http://:1"},
                    Row{"SchemeAlone", "http://", "http://:4411"},
                    Row{"Nothing", "", "https://:4411"},
                    Row{"HostInUtf8",
                        "b\xC3\xBC"
                        "ro",
                        "https://b\xC3\xBC"
                        "ro:4411"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(AgentUrlOutput, MayBeTheAddressItself) {
    std::string text = "backup.lan";
    std::string api;
    session::normalizeAgentUrl(text, api, text);
    EXPECT_EQ(text, "https://backup.lan:4411");
    EXPECT_EQ(api, "https://backup.lan:4411/api");
}

} // namespace
