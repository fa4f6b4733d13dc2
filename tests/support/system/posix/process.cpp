// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/system/process.h"

#include <cstdlib>
#include <ctime>
#include <fstream>

#include <pwd.h>
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

} // namespace support::process
