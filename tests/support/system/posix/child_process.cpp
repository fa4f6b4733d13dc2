// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/child_process.h"

#include <csignal>
#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

namespace {

constexpr int limitMilliseconds = 20'000;
constexpr int notStarted = 127;

/// In the child: replaces the process with the program.
[[noreturn]] void become(const std::string& program, std::vector<std::string>& arguments) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    arguments.insert(arguments.begin(), program);
    std::vector<char*> raw;
    for (std::string& argument : arguments)
        raw.push_back(argument.data());
    raw.push_back(nullptr);
    ::execv(program.c_str(), raw.data());
    ::_exit(notStarted);
}

} // namespace

ChildProcess::ChildProcess(const std::string& program, std::vector<std::string> arguments) {
    int in[2];
    int out[2];
    if (::pipe2(in, O_CLOEXEC) != 0 || ::pipe2(out, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    id_ = ::fork();
    if (id_ == 0) {
        ::dup2(in[0], STDIN_FILENO);
        ::dup2(out[1], STDOUT_FILENO);
        ::dup2(out[1], STDERR_FILENO);
        become(program, arguments);
    }
    ::close(in[0]);
    ::close(out[1]);
    input_ = in[1];
    output_ = out[0];
}

ChildProcess::~ChildProcess() {
    if (id_ > 0) {
        ::kill(id_, SIGKILL);
        ::waitpid(id_, nullptr, 0);
    }
    if (input_ >= 0)
        ::close(input_);
    ::close(output_);
}

std::string ChildProcess::line() {
    std::string text;
    while (!text.ends_with('\n')) {
        char byte = 0;
        if (!readable() || ::read(output_, &byte, 1) != 1)
            throw std::runtime_error("no whole line: " + text);
        text += byte;
    }
    return text;
}

std::string ChildProcess::rest() {
    std::string text;
    char part[4096];
    while (readable()) {
        const ssize_t got = ::read(output_, part, sizeof part);
        if (got <= 0)
            return text;
        text.append(part, static_cast<std::size_t>(got));
    }
    throw std::runtime_error("the program doesn't end");
}

void ChildProcess::write(const std::string& input) {
    const ssize_t written = ::write(input_, input.data(), input.size());
    ::close(input_);
    input_ = -1;
    if (written != static_cast<ssize_t>(input.size()))
        throw std::runtime_error("the program doesn't read");
}

void ChildProcess::signal(int number) {
    if (id_ > 0)
        ::kill(id_, number);
}

bool ChildProcess::runs() {
    int status = 0;
    if (id_ > 0 && ::waitpid(id_, &status, WNOHANG) == id_)
        note(status);
    return id_ > 0;
}

int ChildProcess::status() {
    rest();
    int status = 0;
    if (id_ > 0 && ::waitpid(id_, &status, 0) == id_)
        note(status);
    return status_;
}

void ChildProcess::note(int waitStatus) {
    id_ = -1;
    status_ = WIFEXITED(waitStatus) ? WEXITSTATUS(waitStatus) : 1000 + WTERMSIG(waitStatus);
}

bool ChildProcess::readable() const {
    pollfd waiting{output_, POLLIN, 0};
    return ::poll(&waiting, 1, limitMilliseconds) == 1;
}

std::string runProgram(const std::string& program, const std::vector<std::string>& arguments,
                       const std::string& input) {
    ChildProcess process(program, arguments);
    process.write(input);
    std::string said = process.rest();
    const int status = process.status();
    if (status != 0)
        throw std::runtime_error(program + " ends with status " + std::to_string(status) + ": " +
                                 said);
    return said;
}

} // namespace support
