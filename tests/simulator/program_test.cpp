// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/simulator/raw_client.h"
#include "tests/support/child_process.h"
#include "tests/support/system/failures.h"
#include "tests/support/system/process.h"

using namespace std::string_literals;
using ::testing::HasSubstr;

namespace {

/// The program as a child process.
struct Program : support::ChildProcess {
    explicit Program(std::vector<std::string> arguments)
        : ChildProcess(SIMULATOR_PROGRAM, std::move(arguments)) {}
};

std::uint16_t portOf(const std::string& line) {
    return static_cast<std::uint16_t>(std::stoi(line.substr(line.rfind(':') + 1)));
}

std::string logFile() {
    return ::testing::TempDir() + "simulator-" + std::to_string(support::process::id());
}

TEST(Program, EndsOnAnInterruption) {
    Program program({"--port", "0"});
    const std::string line = program.line();
    EXPECT_EQ(line.substr(0, 18), "https://127.0.0.1:");
    raw::Connection open(portOf(line), true);
    program.interrupt();
    EXPECT_EQ(program.status(), 0);
}

TEST(Program, ListensWithoutTlsOnRequest) {
    Program program({"--port", "0", "--plain"});
    const std::string line = program.line();
    EXPECT_EQ(line.substr(0, 17), "http://127.0.0.1:");
    const std::uint16_t port = portOf(line);
    EXPECT_EQ(raw::exchange(port, false, raw::post(port, "/api", raw::call("getTarnClientType"))),
              raw::reply(raw::int32(8)));
}

TEST(Program, WritesALineForEachCallAndNoPassword) {
    const std::string file = logFile();
    Program program({"--port", "0", "--log", file, "--user", "anna", "--password", "s3cret"});
    const std::uint16_t port = portOf(program.line());
    const std::string base = "https://127.0.0.1:" + std::to_string(port);
    const std::string login =
        raw::call("login", raw::text(base) + raw::text("13.0.0.0") + raw::text("anna") +
                               raw::text("s3cret") + raw::int32(1));
    raw::exchange(port, true, raw::post(port, "/api", login));
    program.interrupt();
    EXPECT_EQ(program.status(), 0);
    std::ifstream log(file);
    const std::string text{std::istreambuf_iterator<char>(log), {}};
    std::remove(file.c_str());
    EXPECT_THAT(text, HasSubstr("http   ClientConnection.login(\"" + base +
                                "\", \"13.0.0.0\", \"anna\", ***, 1) ok\n"));
    EXPECT_EQ(text.find("s3cret"), std::string::npos);
}

TEST(Program, LetsNoClientForgeALine) {
    const std::string file = logFile();
    Program program({"--port", "0", "--log", file});
    const std::uint16_t port = portOf(program.line());
    raw::exchange(port, true, raw::post(port, "/api", raw::call("a\nforged\x1B[2J")));
    program.interrupt();
    EXPECT_EQ(program.status(), 0);
    std::ifstream log(file);
    const std::string text{std::istreambuf_iterator<char>(log), {}};
    std::remove(file.c_str());
    EXPECT_THAT(text, HasSubstr("a?forged?[2J"));
    EXPECT_EQ(text.find("\nforged"), std::string::npos);
    EXPECT_EQ(text.find('\x1B'), std::string::npos);
}

TEST(Program, RefusesABadOption) {
    Program program({"--prot", "0"});
    EXPECT_EQ(program.line(), "tarn-agent-simulator: unknown option '--prot'; see --help\n");
    EXPECT_EQ(program.status(), 2);
}

TEST(Program, SaysThatThePortIsInUse) {
    Program first({"--port", "0"});
    const std::string port = std::to_string(portOf(first.line()));
    Program second({"--port", port});
    EXPECT_EQ(second.line(), "tarn-agent-simulator: can't listen on port " + port + ": " +
                                 support::failures::portTaken().text + "\n");
    EXPECT_EQ(second.status(), 1);
}

TEST(Program, SaysThatTheLogCannotBeWritten) {
    Program program({"--port", "0", "--log", "/nowhere/at/all"});
    EXPECT_EQ(program.line(),
              "tarn-agent-simulator: the log file '/nowhere/at/all' can't be written\n");
    EXPECT_EQ(program.status(), 1);
}

TEST(Program, ReportsHelpAndVersion) {
    Program help({"--help"});
    EXPECT_THAT(help.rest(), HasSubstr("Usage: tarn-agent-simulator"));
    EXPECT_EQ(help.status(), 0);
    Program version({"--version"});
    EXPECT_THAT(version.line(), HasSubstr("tarn-agent-simulator "));
    EXPECT_EQ(version.status(), 0);
}

} // namespace
