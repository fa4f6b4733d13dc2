// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

namespace simulator {

struct SourceComputer;

/// What a computer asks for before it lets the agent in.
enum class LoginKind { Windows, Unix, Ssh };

/// How the agent gets into a computer. Empty texts are not set.
struct CredentialsState {
    LoginKind kind = LoginKind::Windows;
    bool usingClientAccount = false;
    /// The user of the session, who needs no password again on the agent's own computer.
    bool ofSession = false;
    /// They were read from a set, so that any browser takes them.
    bool ofSet = false;
    std::string user;
    std::string password;
    std::string keyFile; ///< in place of a password
    std::string passphrase;
    std::string sudoUser;
    std::string sudoPassword;
    std::int32_t access = 0; ///< what runs there: Perl, Python, or 2 for the script itself
    std::string interpreterPath;
};

/// Tries to log in. Raises `Refusal` with the reason.
void logIn(const CredentialsState& credentials, const SourceComputer& computer);

} // namespace simulator
