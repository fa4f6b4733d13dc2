// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/name_order.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>

#include <QString>

#include "hessian/byte_order.h"
#include "session/text.h"

namespace models {

namespace {

bool isAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

char foldAscii(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

/// Longer encodings begin with higher bytes, so that bytes sort like the values they encode.
void appendValue(std::string& key, uint value) {
    const auto low = [](uint bits) { return static_cast<char>(0x80 | (bits & 0x3f)); };
    if (value < 0x80) {
        key += static_cast<char>(value);
    } else if (value < 0x800) {
        key += {static_cast<char>(0xc0 | value >> 6), low(value)};
    } else if (value < 0x10000) {
        key += {static_cast<char>(0xe0 | value >> 12), low(value >> 6), low(value)};
    } else {
        key +=
            {static_cast<char>(0xf0 | value >> 18), low(value >> 12), low(value >> 6), low(value)};
    }
}

/// `QString::compare` works unit by unit: it compares a high surrogate as is, then the whole pair.
void appendFolded(std::string& key, const QString& name) {
    QChar last;
    for (const QChar unit : name) {
        const uint value = unit.isLowSurrogate() && last.isHighSurrogate()
                               ? QChar::surrogateToUcs4(last, unit)
                               : unit.unicode();
        appendValue(key, QChar::toCaseFolded(value));
        last = unit;
    }
}

void appendKey(std::string& key, const RankedName& ranked) {
    key += static_cast<char>(ranked.rank);
    const std::string_view name = ranked.name;
    if (std::all_of(name.begin(), name.end(), isAscii))
        std::transform(name.begin(), name.end(), std::back_inserter(key), foldAscii);
    else
        appendFolded(key, session::fromWire(name));
}

/// The concatenated keys of all names.
class Keys {
public:
    explicit Keys(const std::vector<RankedName>& names) {
        std::size_t size = 0;
        for (const RankedName& each : names)
            size += 1 + each.name.size();
        bytes_.reserve(size);
        ends_.reserve(names.size() + 1);
        ends_.push_back(0);
        for (const RankedName& each : names) {
            appendKey(bytes_, each);
            ends_.push_back(bytes_.size());
        }
    }

    std::string_view at(std::size_t place) const {
        return std::string_view(bytes_).substr(ends_[place], ends_[place + 1] - ends_[place]);
    }

private:
    std::string bytes_;
    std::vector<std::size_t> ends_; ///< the first one begins at 0
};

/// Some bytes of a key as a big-endian number, and the index of the name.
struct Entry {
    std::uint64_t word;
    std::size_t place;

    bool operator<(const Entry& other) const { return word < other.word; }
};

std::uint64_t wordAt(std::string_view key, std::size_t begin) {
    std::uint64_t word = 0;
    if (begin + sizeof word <= key.size())
        return hessianser::loadBigEndian<std::uint64_t>(key.data() + begin);
    for (std::size_t i = begin; i < begin + sizeof word; ++i)
        word = word << 8 | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0);
    return word;
}

/// Entries whose keys are equal up to `depth`.
struct Run {
    std::vector<Entry>::iterator begin;
    std::vector<Entry>::iterator end;
    std::size_t depth;
};

/// Sorts a run whose keys are equal except for trailing zeros.
void sortAlike(const Run& run, const Keys& keys) {
    std::sort(run.begin, run.end, [&](const Entry& a, const Entry& b) {
        const auto sizeOfA = keys.at(a.place).size();
        const auto sizeOfB = keys.at(b.place).size();
        return sizeOfA != sizeOfB ? sizeOfA < sizeOfB : a.place < b.place;
    });
}

/// Sorts a run by the next word of its keys, and adds the parts that are still equal to `runs`.
void sortByWord(const Run& run, const Keys& keys, std::vector<Run>& runs) {
    bool hasWord = false;
    for (auto entry = run.begin; entry != run.end; ++entry) {
        const std::string_view key = keys.at(entry->place);
        entry->word = wordAt(key, run.depth);
        hasWord |= run.depth < key.size();
    }
    if (!hasWord) {
        sortAlike(run, keys);
        return;
    }
    std::sort(run.begin, run.end);
    for (auto begin = run.begin; begin != run.end;) {
        const auto end = std::find_if(
            begin, run.end, [&](const Entry& entry) { return entry.word != begin->word; });
        if (end - begin > 1)
            runs.push_back({begin, end, run.depth + sizeof begin->word});
        begin = end;
    }
}

} // namespace

// Word by word, so that long names with a common start aren't compared from the start each time.
std::vector<std::size_t> shownOrder(const std::vector<RankedName>& names) {
    const Keys keys(names);
    std::vector<Entry> entries;
    entries.reserve(names.size());
    for (std::size_t place = 0; place < names.size(); ++place)
        entries.push_back({0, place});
    std::vector<Run> runs{{entries.begin(), entries.end(), 0}};
    while (!runs.empty()) {
        const Run run = runs.back();
        runs.pop_back();
        sortByWord(run, keys, runs);
    }
    std::vector<std::size_t> order;
    order.reserve(entries.size());
    for (const Entry& entry : entries)
        order.push_back(entry.place);
    return order;
}

bool sameName(std::string_view a, std::string_view b) {
    const std::size_t shorter = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < shorter; ++i) {
        if (!isAscii(a[i]) || !isAscii(b[i]))
            return QString::compare(session::fromWire(a), session::fromWire(b),
                                    Qt::CaseInsensitive) == 0;
        if (foldAscii(a[i]) != foldAscii(b[i]))
            return false;
    }
    return a.size() == b.size();
}

} // namespace models
