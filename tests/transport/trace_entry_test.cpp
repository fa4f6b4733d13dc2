// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/trace_entry.h"

#include <cerrno>
#include <cstdio>
#include <ctime>
#include <locale>
#include <regex>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "platform/process_id.h"
#include "tests/support/temporary_file.h"
#include "tests/support/time_zone.h"
#include "transport/trace_exception.h"
#include "transport/tracer.h"

namespace {

using namespace hessiancln;
using support::TemporaryFile;
using support::TimeZone;

const std::regex prefix(R"(^(\d+) \((\d+)\) \d{1,2}/\d{1,2}/\d{4} \d\d:\d\d:\d\d )");

std::string withoutPrefix(const std::string& line) {
    return std::regex_replace(line, prefix, "|");
}

/// Collects the entries meant for the system's event log.
struct EventLog {
    std::vector<std::pair<std::string, std::string>> reports;

    TraceEntry::EventLog sink() {
        return [this](const std::string& source, const std::string& text) {
            reports.emplace_back(source, text);
        };
    }
};

TEST(TraceEntry, WritesOneLineWithThePrefix) {
    const TemporaryFile file;
    TraceEntry entry(file.path());
    entry << "port: " << 4411 << ' ' << std::string("open");
    entry.flush();

    ASSERT_EQ(file.lines().size(), 1u);
    const std::string line = file.lines()[0];
    std::smatch parts;
    ASSERT_TRUE(std::regex_search(line, parts, prefix)) << line;
    EXPECT_EQ(parts[1], std::to_string(platform::processId()));
    EXPECT_EQ(parts[2], std::to_string(platform::threadId()));
    EXPECT_EQ(withoutPrefix(line), "|port: 4411 open");
    EXPECT_TRUE(file.text().ends_with("open\n"));
}

/// As in "11/3/2026 09:05:07", formatted independently from the system's local time.
std::string localTime() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    ::localtime_r(&now, &parts);
    char text[64];
    std::snprintf(text, sizeof text, "%d/%d/%d %02d:%02d:%02d", parts.tm_mon + 1, parts.tm_mday,
                  parts.tm_year + 1900, parts.tm_hour, parts.tm_min, parts.tm_sec);
    return text;
}

/// The zones are a day apart, so in at least one of them the day differs from the month's number.
TEST(TraceEntry, ReportsTheLocalTimeWithTheMonthBeforeTheDay) {
    for (const char* zone : {"Test-12", "Test+12"}) {
        const TimeZone here(zone);
        const TemporaryFile file;
        const std::string before = localTime();
        TraceEntry entry(file.path());
        entry << "text";
        entry.flush();
        const std::string after = localTime();

        ASSERT_EQ(file.lines().size(), 1u);
        const std::string line = file.lines()[0];
        const std::size_t start = line.find(") ") + 2;
        const std::string reported = line.substr(start, line.rfind(" text") - start);
        EXPECT_TRUE(reported == before || reported == after)
            << reported << " in place of " << before;
    }
}

TEST(TraceEntry, IndentsTheSecondLineByTheWidthOfThePrefix) {
    const TemporaryFile file;
    TraceEntry entry(file.path());
    entry << "a\nb";
    entry.flush();

    const auto lines = file.lines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(withoutPrefix(lines[0]), "|a");
    EXPECT_EQ(lines[1], std::string(lines[0].size() - 1, ' ') + "b");
}

TEST(TraceEntry, EndsTheLastLineOnce) {
    const TemporaryFile file;
    TraceEntry entry(file.path());
    entry << "a\n\nb\n";
    entry.flush();

    const auto lines = file.lines();
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(withoutPrefix(lines[0]), "|a");
    EXPECT_EQ(lines[1], std::string(lines[0].size() - 1, ' '));
    EXPECT_TRUE(lines[2].ends_with("  b"));
}

TEST(TraceEntry, AppendsBlockAfterBlock) {
    const TemporaryFile file;
    for (const char* text : {"first", "second"}) {
        TraceEntry entry(file.path());
        entry << text;
        entry.flush();
        entry.flush(); // there is nothing left to write
    }
    const auto lines = file.lines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(withoutPrefix(lines[0]), "|first");
    EXPECT_EQ(withoutPrefix(lines[1]), "|second");
}

TEST(TraceEntry, WithoutTextWritesNothing) {
    const TemporaryFile file;
    TraceEntry(file.path()).flush();
    EXPECT_FALSE(file.exists());
}

TEST(TraceEntry, WithoutAFileNameDropsEverything) {
    EventLog log;
    TraceEntry entry("", true, log.sink());
    entry << "text";
    EXPECT_NO_THROW(entry.flush());
    EXPECT_TRUE(log.reports.empty());
}

TEST(TraceEntry, DestroyedWithoutFlushWritesItsTextWithAWarning) {
    const TemporaryFile file;
    { TraceEntry(file.path()) << "forgotten"; }

    const auto lines = file.lines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(withoutPrefix(lines[0]), "|forgotten");
    const std::string indent(lines[0].size() - std::string("forgotten").size(), ' ');
    EXPECT_EQ(lines[1], indent + " !!!WARNING!!! trace data not flushed correctly ");
}

TEST(TraceEntry, DestroyedWithoutFlushRaisesNothing) {
    const TemporaryFile missing;
    EventLog log;
    { TraceEntry(missing.impossiblePath(), true, log.sink()) << "forgotten"; }
    EXPECT_EQ(log.reports.size(), 1u);
}

TEST(TraceEntry, ADirectoryThatDoesNotExistIsReportedAndRaised) {
    const TemporaryFile missing;
    EventLog log;
    TraceEntry entry(missing.impossiblePath(), true, log.sink());
    entry << "text";
    const std::string expected = "Failed to trace to '" + missing.impossiblePath() +
                                 "'. O/S error: No such file or directory";
    try {
        entry.flush();
        FAIL() << "nothing raised";
    } catch (const trace_exception& failure) {
        EXPECT_EQ(failure.what(), expected);
    }
    ASSERT_EQ(log.reports.size(), 1u);
    EXPECT_EQ(log.reports[0].first, "HessianClientAPI");
    EXPECT_EQ(log.reports[0].second, expected);
}

TEST(TraceEntry, AFullDiskIsReportedAndRaised) {
    // Wine opens it, though it says that no such file exists.
    if (!std::ofstream("/dev/full", std::ios::app).is_open())
        GTEST_SKIP() << "needs /dev/full";
    EventLog log;
    TraceEntry entry("/dev/full", true, log.sink());
    entry << "text";
    EXPECT_THROW(entry.flush(), trace_exception);
    ASSERT_EQ(log.reports.size(), 1u);
    EXPECT_EQ(log.reports[0].second,
              "Failed to trace to '/dev/full'. O/S error: No space left on device");
}

TEST(TraceEntry, PrintsNumbersTheSameInEveryLocale) {
    struct Grouped : std::numpunct<char> {
        std::string do_grouping() const override { return "\3"; }
    };
    const TemporaryFile file;
    const std::locale before =
        std::locale::global(std::locale(std::locale::classic(), new Grouped));
    TraceEntry entry(file.path());
    entry << 4411;
    entry.flush();
    std::locale::global(before);

    ASSERT_EQ(file.lines().size(), 1u);
    EXPECT_TRUE(std::regex_search(file.lines()[0], prefix)) << file.lines()[0];
    EXPECT_TRUE(file.lines()[0].ends_with(" 4411")) << file.lines()[0];
}

TEST(Tracer, LevelsDecideWhatIsWritten) {
    const std::vector<std::vector<std::string>> written{
        {}, {"|step"}, {"|step", "|port: 80"}, {}, {}};
    for (std::uint32_t level = 0; level < written.size(); ++level) {
        const TemporaryFile file;
        const Tracer trace(level, file.path());
        trace.step("step");
        trace.detail("port: ", 80);
        std::vector<std::string> lines;
        for (const std::string& line : file.lines())
            lines.push_back(withoutPrefix(line));
        EXPECT_EQ(lines, written[level]) << "level " << level;
    }
}

TEST(Tracer, WithoutAFileNameWritesNothingAndRaisesNothing) {
    const Tracer trace(1, "");
    EXPECT_NO_THROW(trace.step("step"));
}

} // namespace
