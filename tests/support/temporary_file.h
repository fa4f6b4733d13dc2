// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/system/process.h"

namespace support {

/// The name of a file that doesn't exist yet and is removed by the destructor.
class TemporaryFile {
public:
    TemporaryFile() {
        static int count = 0;
        path_ = std::filesystem::path(testing::TempDir()) /
                ("tarn_test_" + std::to_string(process::id()) + "_" + std::to_string(++count));
        std::filesystem::remove(path_);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() { std::filesystem::remove(path_); }

    std::string path() const { return path_.string(); }
    /// The path of a file that can't be created, as its folder doesn't exist.
    std::string impossiblePath() const { return (path_ / "file").string(); }
    bool exists() const { return std::filesystem::exists(path_); }

    std::string text() const {
        std::ostringstream text;
        text << std::ifstream(path_).rdbuf();
        return text.str();
    }

    std::vector<std::string> lines() const {
        std::vector<std::string> lines;
        std::ifstream in(path_);
        for (std::string line; std::getline(in, line);)
            lines.push_back(line);
        return lines;
    }

private:
    std::filesystem::path path_;
};

} // namespace support
