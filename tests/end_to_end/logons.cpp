// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// Logs in to an agent many times, and prints how much memory the process gained: with a name and a
// password, or as the system's user; then it first prints what the security interface returns. With
// an http address there is no TLS session cache.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <vector>

#include "platform/security_context.h"
#include "session/connection.h"
#include "tests/support/system/process.h"

namespace {

constexpr int warmUp = 50;
constexpr int badCommandLine = 2;

void print(const char* operation, platform::SecurityStatus status) {
    std::printf("%s: 0x%08X\n", operation, static_cast<unsigned>(status));
}

/// One round of the interface, without an agent.
void tryInterface() {
    platform::SecurityOperations& system = *platform::securityOperations();
    std::uint32_t size = 0;
    print("QuerySecurityPackageInfo", system.queryMaxTokenSize(size));
    platform::SecurityHandle credentials;
    platform::SecurityHandle context;
    print("AcquireCredentialsHandle", system.acquireCredentials(credentials));
    if (!credentials.held())
        return;
    std::vector<std::uint8_t> token(size);
    std::uint32_t written = 0;
    print("InitializeSecurityContext",
          system.initializeContext(credentials, context, "OstrandBakSvc/localhost", {}, token,
                                   written));
    std::printf("token: %u bytes\n", written);
    system.release(credentials, context);
}

struct Account {
    std::string name;
    std::string password;
};

void logOnAndOff(const std::string& address, const Account& account, int times) {
    for (int i = 0; i < times; ++i) {
        session::connectToAgent(address, account.name, account.password, !account.name.empty());
        if (!session::connectedToAgent())
            throw std::runtime_error("no session");
        session::disconnectFromAgent();
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3 && argc != 5) {
        std::fputs("usage: tarn_logons ADDRESS COUNT [NAME PASSWORD]\n", stderr);
        return badCommandLine;
    }
    Account account;
    if (argc == 5)
        account = {argv[3], argv[4]};
    else
        tryInterface();
    const int count = std::atoi(argv[2]);
    if (count == 0)
        return 0;
    try {
        logOnAndOff(argv[1], account, warmUp);
        const auto before = static_cast<long>(support::process::residentSize());
        logOnAndOff(argv[1], account, count);
        const auto after = static_cast<long>(support::process::residentSize());
        std::printf("%d logons, %ld bytes more each\n", count, (after - before) / count);
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "tarn_logons: %s\n", failure.what());
        return 1;
    }
}
