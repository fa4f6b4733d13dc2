// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// Runs a command in a Kerberos realm of its own, which ends with the command. The variable
// TARN_KEY_TABLE names the agent's key table.
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>

#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/kerberos_realm.h"

namespace {

constexpr int badCommandLine = 2;
constexpr int notStarted = 127;

constexpr const char* usage =
    R"(usage: tarn_in_realm [OPTION]... COMMAND...

Options apply in their order.

  --user NAME       add a user, for a later --ticket
  --ticket          get a ticket for the user
  --expired         get a ticket that has expired
  --service-ticket  get a ticket for the agent as well
  --wrong-key       give the agent a key that doesn't match
  --kdc-gone        stop the KDC
  --kdc-silent      replace the KDC by one that never answers
  --kdc-ahead       set the clock of the KDC ahead by an hour
)";

int run(char** command) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::execvp(command[0], command);
        ::_exit(notStarted);
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child || !WIFEXITED(status))
        return 1;
    return WEXITSTATUS(status);
}

/// Applies the options in their order, and returns the command after them.
char** prepare(support::KerberosRealm& realm, char** argument) {
    std::string user = support::KerberosRealm::user;
    for (; *argument && std::string_view(*argument).starts_with("--"); ++argument) {
        const std::string_view option = *argument;
        if (option == "--user" && argument[1])
            realm.addUser(user = *++argument);
        else if (option == "--ticket")
            realm.getTicket(user);
        else if (option == "--expired")
            realm.getExpiredTicket();
        else if (option == "--service-ticket")
            realm.getServiceTicket();
        else if (option == "--wrong-key")
            ::setenv("TARN_KEY_TABLE", realm.wrongKeyTable().c_str(), 1);
        else if (option == "--kdc-gone")
            realm.stopKdc();
        else if (option == "--kdc-silent")
            realm.silenceKdc();
        else if (option == "--kdc-ahead")
            realm.restartKdcAhead();
        else
            return nullptr;
    }
    return *argument ? argument : nullptr;
}

} // namespace

int main(int, char** argv) {
    try {
        support::KerberosRealm realm;
        ::setenv("TARN_KEY_TABLE", realm.keyTable().c_str(), 1);
        if (char** const command = prepare(realm, argv + 1))
            return run(command);
        std::cerr << usage;
        return badCommandLine;
    } catch (const std::exception& failure) {
        std::cerr << "tarn_in_realm: " << failure.what() << '\n';
        return 1;
    }
}
