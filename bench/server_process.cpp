// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "server_process.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <exception>
#include <stdexcept>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {
namespace {

[[noreturn]] void runChild(const std::function<void(const ServerProcess::Listening&)>& serve,
                           int reports) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    try {
        serve([reports](std::uint16_t port) {
            if (::write(reports, &port, sizeof port) != sizeof port)
                ::_exit(1);
        });
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "server: %s\n", failure.what());
    }
    ::_exit(1);
}

} // namespace

ServerProcess::ServerProcess(const std::function<void(const Listening&)>& serve) {
    std::array<int, 2> reports{};
    if (::pipe(reports.data()) != 0)
        throw std::runtime_error("No pipe to a server");
    child_ = ::fork();
    if (child_ == 0)
        runChild(serve, reports[1]);
    ::close(reports[1]);
    const bool listens = child_ > 0 && ::read(reports[0], &port_, sizeof port_) == sizeof port_;
    ::close(reports[0]);
    if (child_ < 0)
        throw std::runtime_error("Can't start a process for a server");
    if (!listens) {
        ::waitpid(child_, nullptr, 0);
        throw std::runtime_error("A server didn't start");
    }
}

ServerProcess::~ServerProcess() {
    ::kill(child_, SIGKILL);
    ::waitpid(child_, nullptr, 0);
}

double ServerProcess::processorTime() const {
    clockid_t clock{};
    timespec used{};
    if (::clock_getcpuclockid(child_, &clock) != 0 || ::clock_gettime(clock, &used) != 0)
        throw std::runtime_error("This system doesn't report the CPU time of a server");
    return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
}

} // namespace bench
