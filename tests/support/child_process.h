// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace support {

/// A program that a test has started. It ends with this object, and with the thread that made it.
/// Each wait has a limit, and fails with `std::runtime_error`.
class ChildProcess {
public:
    /// `program` is a path; `arguments` don't repeat it.
    ChildProcess(const std::string& program, std::vector<std::string> arguments);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// The next line of its output and error output, with its end.
    std::string line();

    /// All that it still says, until it closes both.
    std::string rest();

    /// For what it reads. Nothing can be written behind that.
    void write(const std::string& input);

    void signal(int number);

    /// Whether it hasn't ended yet.
    bool runs();

    /// The exit status, when it has closed its output; 1000 and more for a signal.
    int status();

private:
    bool readable() const;
    void note(int waitStatus);

    pid_t id_ = -1;
    int status_ = -1; ///< once it has ended
    int input_ = -1;
    int output_ = -1;
};

/// Runs a program to its end and gives what it said. Raises `std::runtime_error` with that text if
/// its exit status isn't 0.
std::string runProgram(const std::string& program, const std::vector<std::string>& arguments,
                       const std::string& input = {});

} // namespace support
