// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/credentials_state.h"

#include "simulator/objects/failures.h"
#include "simulator/world/source_computer.h"

namespace simulator {
namespace {

constexpr std::int32_t directScriptExecution = 2;

void checkPassword(const SourceComputer& computer, const std::string& user,
                   const std::string& password, const std::string& refusal) {
    const auto known = computer.users.find(user);
    if (known == computer.users.end() || known->second != password)
        throw Refusal(refusal);
}

void checkIdentity(const CredentialsState& credentials, const SourceComputer& computer) {
    if (credentials.keyFile.empty())
        return checkPassword(computer, credentials.user, credentials.password,
                             "Unknown user name or bad password.");
    if (computer.users.count(credentials.user) == 0 || credentials.keyFile != computer.keyFile)
        throw Refusal("The server refuses the identity file '" + credentials.keyFile + "'.");
    if (credentials.passphrase != computer.passphrase)
        throw Refusal("The passphrase of the identity file is wrong.");
}

void checkShell(const CredentialsState& credentials, const SourceComputer& computer) {
    if (!credentials.sudoUser.empty())
        checkPassword(computer, credentials.sudoUser, credentials.sudoPassword,
                      "sudo: a password is required to become '" + credentials.sudoUser + "'.");
    const std::string& path = credentials.interpreterPath;
    if (credentials.access == directScriptExecution && path.empty())
        throw Refusal("There is no script to execute.");
    if (!path.empty() && path.front() != '/')
        throw Refusal(path + ": command not found");
}

} // namespace

void logIn(const CredentialsState& credentials, const SourceComputer& computer) {
    if (computer.local && (credentials.usingClientAccount || credentials.ofSession))
        return;
    if (credentials.usingClientAccount)
        throw Refusal("The agent's own account has no access to '" + computer.name + "'.");
    if (credentials.kind != computer.kind)
        throw Refusal("The computer '" + computer.name + "' needs another kind of login.");
    if (credentials.user.empty())
        throw Refusal("A user name is needed for the computer '" + computer.name + "'.");
    checkIdentity(credentials, computer);
    if (credentials.kind == LoginKind::Ssh)
        checkShell(credentials, computer);
}

} // namespace simulator
