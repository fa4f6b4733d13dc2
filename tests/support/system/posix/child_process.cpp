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

struct ChildProcess::Parts {
    pid_t id = -1;
    int status = -1; ///< set once it has ended
    int input = -1;
    int output = -1;

    bool readable() const {
        pollfd waiting{output, POLLIN, 0};
        return ::poll(&waiting, 1, limitMilliseconds) == 1;
    }

    void note(int waitStatus) {
        id = -1;
        status = WIFEXITED(waitStatus) ? WEXITSTATUS(waitStatus) : 1000 + WTERMSIG(waitStatus);
    }
};

ChildProcess::ChildProcess(const std::string& program, std::vector<std::string> arguments)
    : parts_(std::make_unique<Parts>()) {
    int in[2];
    int out[2];
    if (::pipe2(in, O_CLOEXEC) != 0 || ::pipe2(out, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    parts_->id = ::fork();
    if (parts_->id == 0) {
        ::dup2(in[0], STDIN_FILENO);
        ::dup2(out[1], STDOUT_FILENO);
        ::dup2(out[1], STDERR_FILENO);
        become(program, arguments);
    }
    ::close(in[0]);
    ::close(out[1]);
    parts_->input = in[1];
    parts_->output = out[0];
}

ChildProcess::~ChildProcess() {
    if (parts_->id > 0) {
        ::kill(parts_->id, SIGKILL);
        ::waitpid(parts_->id, nullptr, 0);
    }
    if (parts_->input >= 0)
        ::close(parts_->input);
    ::close(parts_->output);
}

std::string ChildProcess::line() {
    std::string text;
    while (!text.ends_with('\n')) {
        char byte = 0;
        if (!parts_->readable() || ::read(parts_->output, &byte, 1) != 1)
            throw std::runtime_error("no whole line: " + text);
        text += byte;
    }
    return text;
}

std::string ChildProcess::rest() {
    std::string text;
    char part[4096];
    while (parts_->readable()) {
        const ssize_t got = ::read(parts_->output, part, sizeof part);
        if (got <= 0)
            return text;
        text.append(part, static_cast<std::size_t>(got));
    }
    throw std::runtime_error("the program doesn't end");
}

void ChildProcess::write(const std::string& input) {
    const ssize_t written = ::write(parts_->input, input.data(), input.size());
    ::close(parts_->input);
    parts_->input = -1;
    if (written != static_cast<ssize_t>(input.size()))
        throw std::runtime_error("the program doesn't read");
}

void ChildProcess::signal(int number) {
    if (parts_->id > 0)
        ::kill(parts_->id, number);
}

void ChildProcess::interrupt() {
    signal(SIGINT);
}

bool ChildProcess::runs() {
    int status = 0;
    if (parts_->id > 0 && ::waitpid(parts_->id, &status, WNOHANG) == parts_->id)
        parts_->note(status);
    return parts_->id > 0;
}

int ChildProcess::status() {
    rest();
    int status = 0;
    if (parts_->id > 0 && ::waitpid(parts_->id, &status, 0) == parts_->id)
        parts_->note(status);
    return parts_->status;
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
