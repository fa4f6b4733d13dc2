// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/row_index.h"

#include <algorithm>

namespace insight {

namespace {

bool holdsAll(std::string_view text, const std::vector<std::string>& words) {
    return std::ranges::all_of(words, [text](const std::string& word) {
        return text.find(word) != std::string_view::npos;
    });
}

std::vector<std::int32_t> setsWith(const std::vector<std::string>& words, const SetNames& names) {
    std::vector<std::int32_t> ids;
    for (const auto& [id, name] : names) {
        std::string text;
        addFolded(name, text);
        if (holdsAll(text, words))
            ids.push_back(id);
    }
    return ids;
}

} // namespace

std::vector<std::uint32_t> RowIndex::matches(const LogFilter& filter, const SetNames& names) const {
    std::vector<std::int32_t> sets;
    if (!filter.query.sets.empty())
        sets = setsWith(filter.query.sets, names);
    std::vector<std::uint32_t> rows;
    for (std::size_t row = 0; row < rows_.size(); ++row)
        if (isMatch(row, filter, filter.query.sets.empty() ? nullptr : &sets))
            rows.push_back(static_cast<std::uint32_t>(row));
    return rows;
}

bool RowIndex::isMatch(std::size_t place, const LogFilter& filter,
                       const std::vector<std::int32_t>* sets) const {
    const Row& row = rows_[place];
    if (row.traits.severity < filter.least || (filter.query.withErrors && !row.traits.hasErrors) ||
        (filter.query.withWarnings && !row.traits.hasWarnings))
        return false;
    if (sets && !std::ranges::binary_search(*sets, row.traits.setKey))
        return false;
    const std::size_t end = place + 1 < rows_.size() ? rows_[place + 1].begin : texts_.size();
    const std::string_view all(texts_);
    return holdsAll(all.substr(row.begin, row.type - row.begin), filter.query.types) &&
           holdsAll(all.substr(row.begin, end - row.begin), filter.query.words);
}

} // namespace insight
