// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <utility>

#include "hessian/kinds.h"

namespace hessianser {

/// One member of a record: its key on the wire and its place in the structure.
template <class R, class M>
struct Field {
    std::string_view key;
    M R::*member;
};

template <class R, class M>
constexpr Field<R, M> field(std::string_view key, M R::*member) {
    return {key, member};
}

/// The members of a record in the order in which they are written.
template <class... F>
constexpr std::tuple<F...> fields(F... field) {
    return {field...};
}

namespace detail {

/// Such a name has as many bytes as characters, and fits in one chunk.
constexpr bool isPlainName(std::string_view name) {
    return name.size() <= maximumChunk && std::all_of(name.begin(), name.end(), [](char c) {
               return static_cast<unsigned char>(c) < 0x80;
           });
}

template <std::size_t N>
constexpr bool arePlainNames(const std::array<std::string_view, N>& names) {
    return std::all_of(names.begin(), names.end(), isPlainName);
}

template <std::size_t N>
constexpr bool areDistinct(const std::array<std::string_view, N>& names) {
    for (auto name = names.begin(); name != names.end(); ++name)
        if (std::find(names.begin(), name, *name) != name)
            return false;
    return true;
}

/// The keys of a record in the order in which they are written.
template <class R>
constexpr auto keysOf() {
    return std::apply(
        [](const auto&... field) {
            return std::array<std::string_view, sizeof...(field)>{field.key...};
        },
        R::fields());
}

/// The place of a member in the image of its record: its key with the head, then its value.
struct MemberPlace {
    std::size_t key;
    std::size_t value;
    std::size_t end;
    bool fixed;
};

/// The bytes of a record of type `R` as written with all numbers zero and without the values of
/// variable size, laid out once at compile time.
///
/// A run is a part of the image that can be copied at once: it extends to the key of the next
/// member of variable size, or to the end of the record.
template <class R>
struct RecordLayout {
    static constexpr auto fields = R::fields();
    static constexpr std::size_t count = std::tuple_size_v<decltype(fields)>;
    using Indices = std::make_index_sequence<count>;

    static_assert(isPlainName(R::wireType), "a wire type name is short and in ASCII");
    static_assert(arePlainNames(keysOf<R>()), "a key is short and in ASCII");
    static_assert(areDistinct(keysOf<R>()), "a record has no key twice");

    template <std::size_t I>
    using Member = std::remove_cvref_t<decltype(std::declval<R&>().*std::get<I>(fields).member)>;

    static_assert(
        []<std::size_t... I>(std::index_sequence<I...>) {
            return (Value<Member<I>> && ...);
        }(Indices{}),
        "the members of a record are of the kinds that the wire knows");

    static constexpr std::size_t mapStartSize = 4 + R::wireType.size();

    static constexpr std::array<MemberPlace, count> places =
        []<std::size_t... I>(std::index_sequence<I...>) {
        std::array<MemberPlace, count> result{};
        std::size_t at = mapStartSize;
        [[maybe_unused]] const auto place = [&at](std::string_view key, std::size_t size) {
            const std::size_t value = at + 3 + key.size();
            const MemberPlace here{at, value, value + size, size != 0};
            at = here.end;
            return here;
        };
        ((result[I] = place(std::get<I>(fields).key, fixedSize<Member<I>>)), ...);
        return result;
    }
    (Indices{});

    static constexpr std::size_t imageSize = (count == 0 ? mapStartSize : places.back().end) + 1;

    static constexpr std::array<char, imageSize> image =
        []<std::size_t... I>(std::index_sequence<I...>) {
        std::array<char, imageSize> result{};
        const auto put = [&result](std::size_t at, char tag, std::string_view text) {
            result[at] = tag;
            result[at + 1] = static_cast<char>(text.size() >> 8);
            result[at + 2] = static_cast<char>(text.size() & 0xFF);
            std::copy(text.begin(), text.end(), result.begin() + at + 3);
        };
        result[0] = 'M';
        put(1, 't', R::wireType);
        (put(places[I].key, 'S', std::get<I>(fields).key), ...);
        [[maybe_unused]] const auto tag = [&result](std::size_t at, std::size_t size) {
            if (size != 0)
                result[at] = size == sizeOfBool ? 'F' : size == sizeOfInt32 ? 'I' : 'L';
        };
        (tag(places[I].value, fixedSize<Member<I>>), ...);
        result.back() = 'z';
        return result;
    }
    (Indices{});

    static constexpr std::string_view mapStart{image.data(), mapStartSize};

    /// The key of member `i` as encoded on the wire.
    static constexpr std::string_view key(std::size_t i) {
        return {image.data() + places[i].key, places[i].value - places[i].key};
    }

    /// Bytes after the tag of member `i`, if it is a number.
    static constexpr std::size_t numberSize(std::size_t i) {
        const std::size_t size = places[i].end - places[i].value;
        return size > sizeOfBool ? size - 1 : 0;
    }

    /// The key of member `i`, with the tag of its value if it is a number.
    static constexpr std::string_view head(std::size_t i) {
        const std::size_t tag = numberSize(i) == 0 ? 0 : 1;
        return {image.data() + places[i].key, places[i].value + tag - places[i].key};
    }

    static constexpr bool startsRun(std::size_t i) { return i == 0 || !places[i - 1].fixed; }

    /// Start and end, within the image, of the run that contains the key of member `i`.
    static constexpr std::size_t runStart(std::size_t i) {
        while (!startsRun(i))
            --i;
        return i == 0 ? 0 : places[i].key;
    }
    static constexpr std::size_t runEnd(std::size_t i) {
        while (i < count && places[i].fixed)
            ++i;
        return i < count ? places[i].value : imageSize;
    }

    /// Whether the last run ends before the end of the record.
    static constexpr bool endsOpen = count == 0 || !places.back().fixed;
};

} // namespace detail
} // namespace hessianser
