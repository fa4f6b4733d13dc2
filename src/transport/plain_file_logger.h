// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <fstream>
#include <mutex>
#include <string>

namespace pion {

/// The process-wide sink for log calls of the network code. It writes one line per call once its
/// file is open; this program never opens it.
class PlainFileLogger {
public:
    enum Level : std::uint32_t { debug = 0, info = 1, warning = 2, error = 3, fatal = 4 };

    static PlainFileLogger& instance();

    PlainFileLogger() = default;
    PlainFileLogger(const PlainFileLogger&) = delete;
    PlainFileLogger& operator=(const PlainFileLogger&) = delete;

    /// Closes the file.
    ~PlainFileLogger();

    /// Appends to `path` from now on. Returns false if it can't be opened.
    bool open(const std::string& path);
    void close();

    /// Levels below `threshold` are dropped.
    void setThreshold(std::uint32_t threshold);
    bool admits(std::uint32_t level) const;

    void log(std::uint32_t level, const std::string& message);

private:
    mutable std::mutex mutex_;
    std::ofstream file_;
    std::uint32_t threshold_ = debug;
};

} // namespace pion
