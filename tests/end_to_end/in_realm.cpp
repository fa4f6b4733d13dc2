// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// Runs a command inside a Kerberos realm of its own, which ends with it. The variable
// TARN_KEY_TABLE names the keys of the agent there.
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string_view>

#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/kerberos_realm.h"

namespace {

constexpr int badCommandLine = 2;
constexpr int notStarted = 127;

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

} // namespace

int main(int argc, char** argv) {
    const bool withTicket = argc > 1 && std::string_view(argv[1]) == "--ticket";
    char** const command = argv + (withTicket ? 2 : 1);
    if (!*command) {
        std::cerr << "usage: tarn_in_realm [--ticket] COMMAND...\n";
        return badCommandLine;
    }
    try {
        support::KerberosRealm realm;
        if (withTicket)
            realm.getTicket();
        ::setenv("TARN_KEY_TABLE", realm.keyTable().c_str(), 1);
        return run(command);
    } catch (const std::exception& failure) {
        std::cerr << "tarn_in_realm: " << failure.what() << '\n';
        return 1;
    }
}
