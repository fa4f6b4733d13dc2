// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

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

    /// Asks it to end, as a user does who presses Ctrl+C. On Windows, that reaches all children.
    void interrupt();

    /// The exit status, once it has closed its output; 1000 plus the number for a signal.
    int status();

    // These three aren't there on Windows, where no test needs them.

    /// Writes to its standard input, then closes it.
    void write(const std::string& input);

    void signal(int number);

    /// Whether it is still running.
    bool runs();

private:
    struct Parts;

    const std::unique_ptr<Parts> parts_;
};

/// Runs a program to its end and returns its output. Throws `std::runtime_error` with that output
/// if the exit status isn't 0. Not there on Windows.
std::string runProgram(const std::string& program, const std::vector<std::string>& arguments,
                       const std::string& input = {});

} // namespace support
