// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace bench {

/// A program that a benchmark runs, and whose output it reads.
class ChildProgram {
public:
    /// Starts the program with these arguments. `prepare` runs in the child before, and may change
    /// its environment. Throws `std::system_error`.
    explicit ChildProgram(const std::vector<std::string>& command,
                          const std::function<void()>& prepare = {});
    ChildProgram(const ChildProgram&) = delete;
    ChildProgram& operator=(const ChildProgram&) = delete;
    /// Kills it if it still runs.
    ~ChildProgram();

    pid_t id() const { return child_; }
    /// The next line of its output. Throws `std::runtime_error` after a minute without one.
    std::string readLine() const;
    /// Ends its input.
    void closeInput();

private:
    pid_t child_ = -1;
    int input_ = -1;
    int output_ = -1;
};

} // namespace bench
