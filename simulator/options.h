// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "hessian/writer.h"
#include "simulator/world/clock.h"
#include "simulator/world/scenario.h"

namespace simulator {

/// The agent's answer to a token of an integrated logon.
struct LogonStep {
    std::string token; ///< for the client, may be empty
    bool loggedIn = false;
    std::string user;
    std::string domain;
};

struct Options {
    std::uint16_t port = 0; ///< 0 selects a free port
    Scenario scenario = Scenario::Default;
    std::string user = "demo";
    std::string password = "demo";
    std::vector<std::string> domains{};
    bool guest = true;  ///< accept an empty user name
    double speed = 1.0; ///< speed of activities
    std::string logFile{};
    bool plain = false; ///< no TLS

    std::optional<std::int32_t> clientType{};   ///< overrides the scenario's: 8, 9, 14 ...
    std::optional<std::int32_t> osType{};       ///< likewise: 0 for Windows, 1 or 2 for Unix
    std::vector<std::int32_t> disabledTools{};  ///< 8 is the tool for local storage
    std::optional<std::string> twoFactorCode{}; ///< enables two-factor authentication

    Clock clock = systemClock();
    std::uint64_t seed = 1;
    /// Handles an integrated logon on the agent's side; without it all are refused. May throw
    /// `Refusal`.
    std::function<LogonStep(const std::string& token)> integratedLogon{};
    /// Accepts real integrated logons with this key table, or that of the environment if empty.
    std::optional<std::string> acceptLogon{};
    /// Keeps the call log for tests. It grows without limit.
    bool recordCalls = true;
};

/// The parsed command line.
struct CommandLine {
    enum class Action { Run, Help, Version } action = Action::Run;
    Options options;
};

/// An invalid command line; the text explains why.
class BadOption : public std::runtime_error {
public:
    using runtime_error::runtime_error;
};

/// `arguments` excludes the program's name. Throws `BadOption`.
CommandLine parseCommandLine(const std::vector<std::string>& arguments);

std::string_view helpText();

} // namespace simulator
