// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/agent_kind.h"

#include <limits>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace {

struct Row {
    std::int32_t clientType;
    const char* name;
    bool admitted;
    bool mobile;
    bool notebook;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.clientType;
}

class AgentKind : public testing::TestWithParam<Row> {};

TEST_P(AgentKind, HasItsNameAndRights) {
    const Row& row = GetParam();
    EXPECT_EQ(session::agentKindName(row.clientType), row.name);
    EXPECT_EQ(session::isAdmittedAgent(row.clientType), row.admitted);
    EXPECT_EQ(session::isMobileAgent(row.clientType), row.mobile);
    EXPECT_EQ(session::isNotebookAgent(row.clientType), row.notebook);
}

constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();

INSTANTIATE_TEST_SUITE_P(Kinds, AgentKind,
                         testing::Values(Row{1, "Tarn-Client Full", false, false, false},
                                         Row{2, "Unknown Tarn-Client", false, false, false},
                                         Row{3, "Linux Tarn-Client", false, false, false},
                                         Row{4, "Mac Client", false, false, false},
                                         Row{5, "Tarn-Client Full", false, false, false},
                                         Row{6, "Linux Tarn-Client", false, false, false},
                                         Row{7, "Mac Client", false, false, false},
                                         Row{8, "Tarn-Mobile Client", true, true, false},
                                         Row{9, "Tarn-Mobile Client", true, true, false},
                                         Row{10, "Tarn-Consumer Client", false, false, false},
                                         Row{11, "Tarn-Consumer Client", false, false, false},
                                         Row{12, "Orbit Tarn-Client", false, false, false},
                                         Row{13, "Orbit Tarn-Client", false, false, false},
                                         Row{14, "Tarn-Notebook Client", true, false, true},
                                         Row{0, "Unknown Tarn-Client", false, false, false},
                                         Row{15, "Unknown Tarn-Client", false, false, false},
                                         Row{-1, "Unknown Tarn-Client", false, false, false},
                                         Row{lowest, "Unknown Tarn-Client", false, false, false},
                                         Row{highest, "Unknown Tarn-Client", false, false, false}));

} // namespace
