// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <cerrno>
#include <exception>
#include <iostream>
#include <system_error>

#include "base/product.h"
#include "simulator/end_request.h"
#include "simulator/options.h"
#include "simulator/simulator.h"

namespace {

constexpr int badCommandLine = 2;

void serve(const simulator::Options& options) {
    simulator::expectEndRequest();
    simulator::Simulator agent(options);
    std::cout << agent.baseUrl() << std::endl;
    simulator::waitForEndRequest();
}

int run(const simulator::CommandLine& commandLine) {
    using Action = simulator::CommandLine::Action;
    if (commandLine.action == Action::Help)
        std::cout << simulator::helpText();
    else if (commandLine.action == Action::Version)
        std::cout << "tarn-agent-simulator " << product::version << '\n';
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
