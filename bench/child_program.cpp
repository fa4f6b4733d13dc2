// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "child_program.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {

namespace {

constexpr int patience = 60'000; // milliseconds
constexpr int notFound = 127;

std::array<int, 2> newPipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");
    return ends;
}

[[noreturn]] void execute(const std::vector<std::string>& command) {
    std::vector<char*> arguments;
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    ::execvp(arguments.front(), arguments.data());
    ::_exit(notFound);
}

} // namespace

ChildProgram::ChildProgram(const std::vector<std::string>& command,
                           const std::function<void()>& prepare) {
    const auto in = newPipe();
    const auto out = newPipe();
    child_ = ::fork();
    if (child_ < 0)
        throw std::system_error(errno, std::generic_category(), "fork");
    if (child_ == 0) {
        ::dup2(in[0], STDIN_FILENO);
        ::dup2(out[1], STDOUT_FILENO);
        if (prepare)
            prepare();
        execute(command);
    }
    ::close(in[0]);
    ::close(out[1]);
    input_ = in[1];
    output_ = out[0];
}

ChildProgram::~ChildProgram() {
    closeInput();
    ::kill(child_, SIGKILL);
    ::waitpid(child_, nullptr, 0);
    ::close(output_);
}

std::string ChildProgram::readLine() const {
    std::string line;
    for (char next = 0;;) {
        pollfd waiting{output_, POLLIN, 0};
        if (::poll(&waiting, 1, patience) != 1 || ::read(output_, &next, 1) != 1)
            throw std::runtime_error("A program doesn't write what it should");
        if (next == '\n')
            return line;
        line += next;
    }
}

void ChildProgram::closeInput() {
    if (input_ >= 0)
        ::close(std::exchange(input_, -1));
}

} // namespace bench
