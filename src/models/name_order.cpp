// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/name_order.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>

#include <QString>

#include "session/text.h"

namespace models {

namespace {

bool isAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

char foldAscii(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

/// Longer forms begin with higher bytes, so that bytes compare like the values that they stand for.
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

/// `QString::compare` compares unit by unit: a high surrogate as it is, then the pair as a whole.
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

/// The key of a name, and where the name stood. Most comparisons are decided by the first bytes.
struct Entry {
    std::uint64_t head;
    std::string_view key;
    std::size_t place;

    Entry(std::string_view keyOfName, std::size_t placeOfName)
        : head(firstBytes(keyOfName))
        , key(keyOfName)
        , place(placeOfName) {}

    bool operator<(const Entry& other) const {
        if (head != other.head)
            return head < other.head;
        if (const int order = key.compare(other.key))
            return order < 0;
        return place < other.place;
    }

    /// The first byte counts most.
    static std::uint64_t firstBytes(std::string_view key) {
        std::uint64_t bytes = 0;
        for (std::size_t i = 0; i < sizeof bytes; ++i)
            bytes = bytes << 8 | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0);
        return bytes;
    }
};

/// The keys of all names, one behind the other.
struct Keys {
    std::string bytes;
    std::vector<std::size_t> ends;

    explicit Keys(const std::vector<RankedName>& names) {
        std::size_t size = 0;
        for (const RankedName& each : names)
            size += 1 + each.name.size();
        bytes.reserve(size);
        ends.reserve(names.size());
        for (const RankedName& each : names) {
            appendKey(bytes, each);
            ends.push_back(bytes.size());
        }
    }

    std::vector<Entry> entries() const {
        std::vector<Entry> entries;
        entries.reserve(ends.size());
        const std::string_view all = bytes;
        std::size_t begin = 0;
        for (std::size_t place = 0; place < ends.size(); ++place) {
            entries.emplace_back(all.substr(begin, ends[place] - begin), place);
            begin = ends[place];
        }
        return entries;
    }
};

} // namespace

std::vector<std::size_t> shownOrder(const std::vector<RankedName>& names) {
    const Keys keys(names);
    std::vector<Entry> entries = keys.entries();
    std::sort(entries.begin(), entries.end());
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
