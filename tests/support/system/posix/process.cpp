// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/system/process.h"

#include <csignal>
#include <cstdlib>
#include <ctime>
#include <fstream>

#include <pwd.h>
#include <sys/wait.h>
#include <unistd.h>

namespace support::process {

long id() {
    return ::getpid();
}

std::string accountName() {
    const passwd* account = ::getpwuid(::geteuid());
    return account ? account->pw_name : "";
}

void setEnvironment(const std::string& name, const std::optional<std::string>& value) {
    value ? ::setenv(name.c_str(), value->c_str(), 1) : ::unsetenv(name.c_str());
}

void readTimeZone() {
    ::tzset();
}

std::size_t residentSize() {
    std::size_t total = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

bool suspend(long child) {
    const auto id = static_cast<pid_t>(child);
    if (::kill(id, SIGSTOP) != 0)
        return false;
    // Until all of its threads have stopped.
    int status = 0;
    return ::waitpid(id, &status, WUNTRACED | __WALL) == id && WIFSTOPPED(status);
}

bool resume(long child) {
    return ::kill(static_cast<pid_t>(child), SIGCONT) == 0;
}

} // namespace support::process
