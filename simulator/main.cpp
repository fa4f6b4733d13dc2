// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <cerrno>
#include <csignal>
#include <exception>
#include <iostream>
#include <system_error>

#include "simulator/options.h"
#include "simulator/simulator.h"

namespace {

constexpr int badCommandLine = 2;

/// Signals are taken by `sigwait` on the main thread, so every thread is to block them.
sigset_t blockEndSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signals;
}

void serve(const simulator::Options& options) {
    const sigset_t signals = blockEndSignals();
    simulator::Simulator agent(options);
    std::cout << agent.baseUrl() << std::endl;
    int received = 0;
    sigwait(&signals, &received);
}

int run(const simulator::CommandLine& commandLine) {
    using Action = simulator::CommandLine::Action;
    if (commandLine.action == Action::Help)
        std::cout << simulator::helpText();
    else if (commandLine.action == Action::Version)
        std::cout << "tarn-agent-simulator " << TARN_VERSION << '\n';
    else
        serve(commandLine.options);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(simulator::parseCommandLine({argv + 1, argv + argc}));
    } catch (const simulator::BadOption& bad) {
        std::cerr << "tarn-agent-simulator: " << bad.what() << "; see --help\n";
        return badCommandLine;
    } catch (const std::exception& error) {
        std::cerr << "tarn-agent-simulator: " << error.what() << '\n';
    }
    return 1;
}
