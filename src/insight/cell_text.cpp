// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/cell_text.h"

#include <algorithm>
#include <array>
#include <charconv>

#include <QDateTime>

#include "insight/log_query.h"
#include "session/text.h"

namespace insight {

namespace {

constexpr std::int64_t secondsADay = 86'400;
/// Time zones change their offset only at quarter-hour boundaries.
constexpr std::int64_t secondsOfOffset = 900;

std::int64_t floorDivided(std::int64_t dividend, std::int64_t divisor) {
    return dividend / divisor - (dividend % divisor < 0 ? 1 : 0);
}

bool isAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

CellText::CellText(const QLocale& locale)
    : locale_(locale)
    , minus_(folded(QString(locale.negativeSign()))) {
    // Not every locale groups digits.
    constexpr int grouped = 1'234'567;
    const QString sample = locale.toString(grouped);
    if (sample.size() > 7)
        separator_ = folded(sample.mid(1, 1));
}

void CellText::addNumber(std::int64_t number, std::string& out) const {
    std::array<char, 24> digits;
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    std::string_view text(digits.data(), written.ptr);
    if (text.starts_with('-')) {
        out += minus_;
        text.remove_prefix(1);
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i > 0 && (text.size() - i) % 3 == 0)
            out += separator_;
        out += text[i];
    }
}

void CellText::addTime(std::int64_t seconds, QLocale::FormatType format, std::string& out) {
    const std::int64_t local = localTime(seconds);
    const std::int64_t day = floorDivided(local, secondsADay);
    out += dateText(day, format);
    out += ' ';
    out += clockText(local - day * secondsADay, format);
}

std::int64_t CellText::localTime(std::int64_t seconds) {
    const std::int64_t quarter = floorDivided(seconds, secondsOfOffset);
    auto found = offsets_.find(quarter);
    if (found == offsets_.end())
        found =
            offsets_
                .emplace(quarter,
                         QDateTime::fromSecsSinceEpoch(quarter * secondsOfOffset).offsetFromUtc())
                .first;
    return seconds + found->second;
}

const std::string& CellText::dateText(std::int64_t day, QLocale::FormatType format) {
    auto& texts = dates_[format];
    auto found = texts.find(day);
    if (found == texts.end())
        found = texts.emplace(day, folded(locale_.toString(QDate(1970, 1, 1).addDays(day), format)))
                    .first;
    return found->second;
}

const std::string& CellText::clockText(std::int64_t second, QLocale::FormatType format) {
    // Most short times have no seconds, so there are few different texts.
    const bool hasSeconds = locale_.timeFormat(format).contains(QLatin1Char('s'));
    const std::int64_t shown = hasSeconds ? second : second / 60 * 60;
    auto& texts = clocks_[format];
    auto found = texts.find(shown);
    if (found == texts.end())
        found = texts
                    .emplace(shown, folded(locale_.toString(
                                        QTime(0, 0).addSecs(static_cast<int>(shown)), format)))
                    .first;
    return found->second;
}

void addFolded(std::string_view text, std::string& out) {
    if (!isAscii(text)) {
        out += folded(session::fromWire(text));
        return;
    }
    const std::size_t begin = out.size();
    out += text;
    std::transform(out.begin() + static_cast<std::ptrdiff_t>(begin), out.end(),
                   out.begin() + static_cast<std::ptrdiff_t>(begin),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
}

} // namespace insight
