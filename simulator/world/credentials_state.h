// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

namespace simulator {

struct SourceComputer;

/// The kind of login a computer requires.
enum class LoginKind { Windows, Unix, Ssh };

/// How the agent accesses a computer. Empty texts are unset.
struct CredentialsState {
    LoginKind kind = LoginKind::Windows;
    bool usingClientAccount = false;
    /// The user of the session, who needs no password on the agent's own computer.
    bool ofSession = false;
    /// Read from a set, so that any browser accepts them.
    bool ofSet = false;
    std::string user;
    std::string password;
    std::string keyFile; ///< used instead of a password
    std::string passphrase;
    std::string sudoUser;
    std::string sudoPassword;
    std::int32_t access = 0; ///< what runs there: Perl, Python, or 2 for the script itself
    std::string interpreterPath;
};

/// Tries to log in. Throws `Refusal` with the reason.
void logIn(const CredentialsState& credentials, const SourceComputer& computer);

} // namespace simulator
