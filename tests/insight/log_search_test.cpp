// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "api/activity_records.h"
#include "insight/row_index.h"
#include "session/text.h"
#include "ui/locale_text.h"

using insight::LogFilter;
using insight::LogKeywords;
using insight::LogQuery;
using insight::Severity;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Read when the first text is created.
const bool localeIsSet = qputenv("LC_ALL", "en_US.UTF-8") && qputenv("TZ", "UTC");

const LogKeywords german{QStringLiteral("satz"), QStringLiteral("typ"), QStringLiteral("fehler"),
                         QStringLiteral("warnungen")};

LogQuery parsed(const char* text) {
    return insight::parseLogQuery(QString::fromUtf8(text), german);
}

TEST(LogQuery, Words) {
    EXPECT_TRUE(parsed("  ").isEmpty());
    EXPECT_THAT(parsed(" Daily  ADMIN ").words, ElementsAre("daily", "admin"));
    EXPECT_THAT(parsed("\"Daily Admin\" x").words, ElementsAre("daily admin", "x"));
    EXPECT_THAT(parsed("\"Daily Ad").words, ElementsAre("daily ad"));
    EXPECT_THAT(parsed("MÜLLER Straße").words, ElementsAre("müller", "straße"));
}

TEST(LogQuery, Keywords) {
    EXPECT_THAT(parsed("set:Mail").sets, ElementsAre("mail"));
    EXPECT_THAT(parsed("SET:\"Mail archive\"").sets, ElementsAre("mail archive"));
    EXPECT_THAT(parsed("Typ:Sicherung").types, ElementsAre("sicherung"));
    EXPECT_TRUE(parsed("errors").withErrors);
    EXPECT_TRUE(parsed("Fehler").withErrors);
    EXPECT_TRUE(parsed("warnings").withWarnings);
    // Quotes make a keyword a word.
    EXPECT_EQ(parsed("\"errors\" \"set:mail").words,
              (std::vector<std::string>{"errors", "set:mail"}));
    EXPECT_FALSE(parsed("\"errors\"").withErrors);
    // An incomplete term matches everything while it is being typed.
    EXPECT_TRUE(parsed("set:").isEmpty());
    EXPECT_THAT(parsed("C:\\Data :x").words, ElementsAre("c:\\data", ":x"));
}

struct Line {
    std::int32_t type = 0;
    std::string text;
    std::int64_t number = 0;
    std::int64_t time = 0;
    std::int32_t set = 0;
    Severity severity = Severity::info;
};

using models::Cell;
using models::CellLabel;
using models::CellNumber;
using models::CellTime;

QString typeText(const Line& line) {
    return line.type == 0 ? QStringLiteral("Backup") : QStringLiteral("Daily Admin");
}

constexpr std::array<models::RecordColumn<Line>, 5> columns{{
    {{0, "Type"},
     typeText,
     {},
     nullptr,
     [](const Line& line) -> Cell { return CellLabel{line.type}; }},
    {{1, "Text"},
     [](const Line& line) { return session::fromWire(line.text); },
     {},
     nullptr,
     [](const Line& line) -> Cell { return line.text; }},
    {{2, "Number"},
     [](const Line& line) { return ui::numberText(line.number); },
     {},
     nullptr,
     [](const Line& line) -> Cell { return CellNumber{line.number}; }},
    {{3, "Time"},
     [](const Line& line) { return ui::timeText(line.time, QLocale::ShortFormat); },
     {},
     nullptr,
     [](const Line& line) -> Cell {
         return CellTime{line.time, QLocale::ShortFormat};
     }},
    {{4, "None"},
     [](const Line&) { return QString(); },
     {},
     nullptr,
     [](const Line&) { return Cell(); }},
}};

std::vector<std::uint32_t> matches(const std::vector<Line>& lines, const char* text,
                                   Severity least = Severity::info) {
    insight::RowIndex index;
    index.build<Line>(lines, columns, [](const Line& line) {
        return insight::RowTraits{line.severity, line.set, line.severity == Severity::error,
                                  line.severity == Severity::warning};
    });
    return index.matches({parsed(text), least}, {{3, "Mail archive"}, {4, "Müller"}});
}

const std::vector<Line> lines{
    {0, "Documents", 1'234'567, 1'700'000'000, 3, Severity::info},
    {1, "Größe", 12, 1'700'086'400, 4, Severity::warning},
    {0, "documents 2", 7, 0, 4, Severity::error},
};

TEST(RowIndex, WordsAreFoundInAnyColumnInAnyCase) {
    ASSERT_TRUE(localeIsSet);
    EXPECT_THAT(matches(lines, ""), ElementsAre(0, 1, 2));
    EXPECT_THAT(matches(lines, "DOCUMENTS"), ElementsAre(0, 2));
    EXPECT_THAT(matches(lines, "backup 2"), ElementsAre(0, 2));
    EXPECT_THAT(matches(lines, "GRÖß"), ElementsAre(1));
    EXPECT_THAT(matches(lines, "1,234,567"), ElementsAre(0));
    EXPECT_THAT(matches(lines, "11/15/23"), ElementsAre(1));
    EXPECT_THAT(matches(lines, "nothing"), IsEmpty());
}

TEST(RowIndex, AWordStaysWithinItsColumn) {
    EXPECT_THAT(matches(lines, "backupdoc"), IsEmpty());
    EXPECT_THAT(matches({{0, "last", 0, 0, 0, {}}, {0, "first", 0, 0, 0, {}}}, "am backup"),
                ElementsAre(0, 1));
    EXPECT_THAT(matches({{0, "last", 0, 0, 0, {}}, {0, "first", 0, 0, 0, {}}}, "\"am backup\""),
                IsEmpty());
}

TEST(RowIndex, KeywordsNarrow) {
    EXPECT_THAT(matches(lines, "type:admin"), ElementsAre(1));
    EXPECT_THAT(matches(lines, "type:documents"), IsEmpty());
    EXPECT_THAT(matches(lines, "set:müll"), ElementsAre(1, 2));
    EXPECT_THAT(matches(lines, "set:müll documents"), ElementsAre(2));
    EXPECT_THAT(matches(lines, "set:nobody"), IsEmpty());
    EXPECT_THAT(matches(lines, "errors"), ElementsAre(2));
    EXPECT_THAT(matches(lines, "warnings"), ElementsAre(1));
}

TEST(RowIndex, Severities) {
    EXPECT_THAT(matches(lines, "", Severity::warning), ElementsAre(1, 2));
    EXPECT_THAT(matches(lines, "", Severity::error), ElementsAre(2));
    EXPECT_THAT(matches(lines, "müller", Severity::error), IsEmpty());
}

TEST(RowIndex, NothingMatchesInAnEmptyLog) {
    EXPECT_THAT(matches({}, "x"), IsEmpty());
}

} // namespace
