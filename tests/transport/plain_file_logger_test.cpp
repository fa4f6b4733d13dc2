// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/plain_file_logger.h"

#include <regex>

#include <gtest/gtest.h>

#include "tests/support/temporary_file.h"

namespace {

using pion::PlainFileLogger;
using support::TemporaryFile;

const std::regex time(R"(^\d{4}-[A-Z][a-z]{2}-\d\d \d\d:\d\d:\d\d(\.\d{6})? : )");

std::vector<std::string> linesWithoutTime(const TemporaryFile& file) {
    std::vector<std::string> lines;
    for (const std::string& line : file.lines()) {
        EXPECT_TRUE(std::regex_search(line, time)) << line;
        lines.push_back(std::regex_replace(line, time, ""));
    }
    return lines;
}

TEST(PlainFileLogger, NamesTheLevels) {
    const TemporaryFile file;
    PlainFileLogger logger;
    ASSERT_TRUE(logger.open(file.path()));
    for (std::uint32_t level = 0; level < 6; ++level)
        logger.log(level, "text");
    EXPECT_EQ(linesWithoutTime(file),
              (std::vector<std::string>{"DEBUG : text", "INFO : text", "WARNING : text",
                                        "ERROR : text", "FATAL : text", "<UNKNOWN> : text"}));
}

TEST(PlainFileLogger, DropsWhatIsBelowTheThreshold) {
    const TemporaryFile file;
    PlainFileLogger logger;
    ASSERT_TRUE(logger.open(file.path()));
    logger.setThreshold(PlainFileLogger::error);
    EXPECT_FALSE(logger.admits(PlainFileLogger::warning));
    EXPECT_TRUE(logger.admits(PlainFileLogger::error));
    logger.log(PlainFileLogger::warning, "dropped");
    logger.log(PlainFileLogger::error, "kept");
    EXPECT_EQ(linesWithoutTime(file), std::vector<std::string>{"ERROR : kept"});
}

TEST(PlainFileLogger, IsSilentWhileNoFileIsOpen) {
    const TemporaryFile file;
    PlainFileLogger logger;
    logger.log(PlainFileLogger::fatal, "before");
    ASSERT_TRUE(logger.open(file.path()));
    logger.close();
    logger.log(PlainFileLogger::fatal, "after");
    EXPECT_EQ(file.text(), "");
}

TEST(PlainFileLogger, SaysWhenItCannotOpen) {
    const TemporaryFile missing;
    PlainFileLogger logger;
    EXPECT_FALSE(logger.open(missing.impossiblePath()));
}

} // namespace
