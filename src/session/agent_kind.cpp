// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/agent_kind.h"

#include <algorithm>
#include <array>

namespace session {

namespace {

enum class Family { Mobile, Notebook, Other };

struct AgentKind {
    std::int32_t clientType;
    std::string_view name;
    Family family;
};

constexpr std::array agentKinds{
    AgentKind{1, "Tarn-Client Full", Family::Other},
    AgentKind{3, "Linux Tarn-Client", Family::Other},
    AgentKind{4, "Mac Client", Family::Other},
    AgentKind{5, "Tarn-Client Full", Family::Other},
    AgentKind{6, "Linux Tarn-Client", Family::Other},
    AgentKind{7, "Mac Client", Family::Other},
    AgentKind{8, "Tarn-Mobile Client", Family::Mobile},
    AgentKind{9, "Tarn-Mobile Client", Family::Mobile},
    AgentKind{10, "Tarn-Consumer Client", Family::Other},
    AgentKind{11, "Tarn-Consumer Client", Family::Other},
    AgentKind{12, "Orbit Tarn-Client", Family::Other},
    AgentKind{13, "Orbit Tarn-Client", Family::Other},
    AgentKind{14, "Tarn-Notebook Client", Family::Notebook},
};

AgentKind kindOf(std::int32_t clientType) {
    const auto found = std::ranges::find(agentKinds, clientType, &AgentKind::clientType);
    return found != agentKinds.end() ? *found
                                     : AgentKind{clientType, "Unknown Tarn-Client", Family::Other};
}

} // namespace

std::string_view agentKindName(std::int32_t clientType) {
    return kindOf(clientType).name;
}

bool isAdmittedAgent(std::int32_t clientType) {
    return kindOf(clientType).family != Family::Other;
}

bool isMobileAgent(std::int32_t clientType) {
    return kindOf(clientType).family == Family::Mobile;
}

bool isNotebookAgent(std::int32_t clientType) {
    return kindOf(clientType).family == Family::Notebook;
}

} // namespace session
