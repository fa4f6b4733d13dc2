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
    std::uint16_t port = 0; ///< 0 takes a free one
    Scenario scenario = Scenario::Default;
    std::string user = "demo";
    std::string password = "demo";
    std::vector<std::string> domains{};
    bool guest = true;  ///< an empty user is let in
    double speed = 1.0; ///< how fast activities progress
    std::string logFile{};
    bool plain = false; ///< no TLS

    std::optional<std::int32_t> clientType{};   ///< in place of the scenario's: 8, 9, 14 ...
    std::optional<std::int32_t> osType{};       ///< likewise: 0 for Windows, 1 or 2 for Unix
    std::vector<std::int32_t> disabledTools{};  ///< 8 lets sets use local storage
    std::optional<std::string> twoFactorCode{}; ///< switches two-factor authentication on

    Clock clock = systemClock();
    std::uint64_t seed = 1;
    /// Plays the agent's part of an integrated logon; without it each one is refused. It may raise
    /// a `Refusal`.
    std::function<LogonStep(const std::string& token)> integratedLogon{};
    /// Accepts integrated logons for real, with this key table; that of the environment if empty.
    std::optional<std::string> acceptLogon{};
    /// Keep the call log for tests. It grows without end.
    bool recordCalls = true;
};

/// What a command line asks for.
struct CommandLine {
    enum class Action { Run, Help, Version } action = Action::Run;
    Options options;
};

/// A command line that makes no sense; the text says why.
class BadOption : public std::runtime_error {
public:
    using runtime_error::runtime_error;
};

/// `arguments` without the program's name. Raises `BadOption`.
CommandLine parseCommandLine(const std::vector<std::string>& arguments);

std::string_view helpText();

} // namespace simulator
