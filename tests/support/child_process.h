// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace support {

/// A program started by a test. It ends with this object, and with the thread that created it. Each
/// wait has a limit and throws `std::runtime_error` when it is exceeded.
class ChildProcess {
public:
    /// `program` is a path; `arguments` doesn't repeat it.
    ChildProcess(const std::string& program, std::vector<std::string> arguments);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// The next line of its output and error output, including the line end.
    std::string line();

    /// All remaining output, until it closes both streams.
    std::string rest();

    /// Writes to its standard input, then closes it.
    void write(const std::string& input);

    void signal(int number);

    /// Whether it is still running.
    bool runs();

    /// The exit status, once it has closed its output; 1000 plus the number for a signal.
    int status();

private:
    bool readable() const;
    void note(int waitStatus);

    pid_t id_ = -1;
    int status_ = -1; ///< set once it has ended
    int input_ = -1;
    int output_ = -1;
};

/// Runs a program to its end and returns its output. Throws `std::runtime_error` with that output
/// if the exit status isn't 0.
std::string runProgram(const std::string& program, const std::vector<std::string>& arguments,
                       const std::string& input = {});

} // namespace support
