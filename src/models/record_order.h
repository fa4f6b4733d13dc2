// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <QString>
#include <Qt>

/// Sorts a list of records by a key. The keys are extracted once and sorted along with the indices
/// of their records; then each record moves once: records are wide, keys are narrow.
namespace models {

template <class R>
using NumberKey = std::int64_t (*)(const R&);

/// Sorts bytewise.
template <class R>
using TextKey = std::string R::*;

/// Sorts by the displayed label of a number, case-sensitively.
template <class R>
struct LabelKey {
    std::int32_t (*number)(const R&);
    QString (*label)(const R&);
};

/// The sort key of a column; the first alternative is a column that can't be sorted.
template <class R>
using SortKey = std::variant<std::monostate, NumberKey<R>, TextKey<R>, LabelKey<R>>;

namespace detail {

template <class Key>
struct Keyed {
    Key key;
    std::uint32_t index;
};

template <class R, class KeyOf>
auto keysOf(const std::vector<R>& records, KeyOf keyOf) {
    std::vector<Keyed<decltype(keyOf(records.front()))>> keys;
    keys.reserve(records.size());
    for (const R& record : records)
        keys.push_back({keyOf(record), static_cast<std::uint32_t>(keys.size())});
    return keys;
}

/// The rank of each number's label among the labels that occur.
template <class R>
std::map<std::int32_t, std::int64_t> labelRanks(const std::vector<R>& records, LabelKey<R> key) {
    std::map<std::int32_t, QString> labels;
    for (const R& record : records)
        if (const std::int32_t number = key.number(record); !labels.contains(number))
            labels.emplace(number, key.label(record));
    std::vector<QString> ordered;
    ordered.reserve(labels.size());
    for (const auto& [number, label] : labels)
        ordered.push_back(label);
    std::sort(ordered.begin(), ordered.end());
    std::map<std::int32_t, std::int64_t> ranks;
    for (const auto& [number, label] : labels)
        ranks[number] = std::lower_bound(ordered.begin(), ordered.end(), label) - ordered.begin();
    return ranks;
}

/// Arranges `records` in the order of `keys`. Equal keys keep their order in either direction.
template <class R, class Key>
void arrange(std::vector<R>& records, std::vector<Keyed<Key>> keys, Qt::SortOrder order) {
    const auto sortBy = [&](auto before) {
        const auto less = [before](const Keyed<Key>& left, const Keyed<Key>& right) {
            if (left.key != right.key)
                return before(left.key, right.key);
            return left.index < right.index;
        };
        if (std::is_sorted(keys.begin(), keys.end(), less))
            return false;
        std::sort(keys.begin(), keys.end(), less);
        return true;
    };
    const bool moved =
        order == Qt::AscendingOrder ? sortBy(std::less<Key>()) : sortBy(std::greater<Key>());
    if (!moved)
        return;
    std::vector<R> arranged;
    arranged.reserve(records.size());
    for (const Keyed<Key>& key : keys)
        arranged.push_back(std::move(records[key.index]));
    records = std::move(arranged);
}

} // namespace detail

/// Sorts `records` by `key`. Records with equal keys keep their order. An empty key leaves the list
/// unchanged.
template <class R>
void sortRecords(std::vector<R>& records, const SortKey<R>& key, Qt::SortOrder order) {
    if (const auto* number = std::get_if<NumberKey<R>>(&key)) {
        detail::arrange(records, detail::keysOf(records, *number), order);
    } else if (const auto* text = std::get_if<TextKey<R>>(&key)) {
        const TextKey<R> member = *text;
        const auto view = [member](const R& record) { return std::string_view(record.*member); };
        // The keys point into the records, which don't move until all comparisons are done.
        detail::arrange(records, detail::keysOf(records, view), order);
    } else if (const auto* label = std::get_if<LabelKey<R>>(&key)) {
        const auto ranks = detail::labelRanks(records, *label);
        const auto rank = [&](const R& record) { return ranks.at(label->number(record)); };
        detail::arrange(records, detail::keysOf(records, rank), order);
    }
}

} // namespace models
