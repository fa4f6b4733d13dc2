// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>

/// The kinds of agent, by the number that `getTarnClientType` returns.
namespace session {

/// The name of such an agent in messages; "Unknown Tarn-Client" for an unassigned number.
std::string_view agentKindName(std::int32_t clientType);

/// Whether this program may log in to such an agent.
bool isAdmittedAgent(std::int32_t clientType);

bool isMobileAgent(std::int32_t clientType);
bool isNotebookAgent(std::int32_t clientType);

} // namespace session
