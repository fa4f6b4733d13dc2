// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <QString>

#include "insight/cell_text.h"
#include "insight/log_query.h"
#include "models/record_table_model.h"

namespace insight {

enum class Severity : std::int8_t { info, warning, error };

/// Which rows of a log are shown.
struct LogFilter {
    LogQuery query;
    Severity least = Severity::info;

    bool isEmpty() const { return query.isEmpty() && least == Severity::info; }
    friend bool operator==(const LogFilter&, const LogFilter&) = default;
};

/// The names of backup sets in UTF-8, by the key in each row: the id of the set or that of an
/// activity.
using SetNames = std::map<std::int32_t, std::string>;

/// Properties of a log row apart from its columns.
struct RowTraits {
    Severity severity = Severity::info;
    std::int32_t setKey = 0; ///< key of its set in the names
    bool hasErrors = false;
    bool hasWarnings = false;
};

/// The concatenated texts of all rows of a log, for a search on every key press.
class RowIndex {
public:
    template <class R>
    void build(const std::vector<R>& records, std::span<const models::RecordColumn<R>> columns,
               RowTraits (*traitsOf)(const R&));

    std::size_t size() const { return rows_.size(); }

    /// The rows that pass the filter, ascending.
    std::vector<std::uint32_t> matches(const LogFilter& filter, const SetNames& names) const;

private:
    struct Row {
        std::size_t begin = 0; ///< of its texts
        std::size_t type = 0;  ///< end of the first column
        RowTraits traits;
    };

    bool isMatch(std::size_t row, const LogFilter& filter,
                 const std::vector<std::int32_t>* sets) const;

    std::string texts_;
    std::vector<Row> rows_;
};

template <class R>
void RowIndex::build(const std::vector<R>& records,
                     std::span<const models::RecordColumn<R>> columns,
                     RowTraits (*traitsOf)(const R&)) {
    CellText cellText;
    std::vector<std::unordered_map<std::int64_t, std::string>> labels(columns.size());
    texts_.clear();
    rows_.clear();
    rows_.reserve(records.size());
    for (const R& record : records) {
        Row row{texts_.size(), 0, traitsOf(record)};
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const models::RecordColumn<R>& column = columns[i];
            const models::Cell cell = column.cell ? column.cell(record) : models::Cell();
            if (const auto* text = std::get_if<std::string_view>(&cell)) {
                addFolded(*text, texts_);
            } else if (const auto* number = std::get_if<models::CellNumber>(&cell)) {
                cellText.addNumber(number->value, texts_);
            } else if (const auto* time = std::get_if<models::CellTime>(&cell)) {
                cellText.addTime(time->seconds, time->format, texts_);
            } else if (const auto* label = std::get_if<models::CellLabel>(&cell)) {
                auto& known = labels[i];
                auto found = known.find(label->number);
                if (found == known.end())
                    found = known.emplace(label->number, folded(column.text(record))).first;
                texts_ += found->second;
            }
            // Prevents matches across columns.
            texts_ += '\n';
            if (i == 0)
                row.type = texts_.size();
        }
        rows_.push_back(row);
    }
}

} // namespace insight
