// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>

/// The kinds of agent, by the number that an agent answers to `getTarnClientType`.
namespace session {

/// What messages call such an agent; "Unknown Tarn-Client" for a number that nobody gave out.
std::string_view agentKindName(std::int32_t clientType);

/// Whether this program may log in to such an agent.
bool isAdmittedAgent(std::int32_t clientType);

bool isMobileAgent(std::int32_t clientType);
bool isNotebookAgent(std::int32_t clientType);

} // namespace session
