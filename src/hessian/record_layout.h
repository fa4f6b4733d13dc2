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

/// One member of a record: its key on the wire and where it stands in the structure.
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

/// Where a member stands in the image of its record: its key with the head, then its value.
struct MemberPlace {
    std::size_t key;
    std::size_t value;
    std::size_t end;
    bool fixed;
};

/// The bytes of a record of type `R` as it is written with all numbers zero and without the
/// values of varying size, laid out once at compile time.
///
/// A run is a stretch of the image that can be copied in one piece: it goes up to the key of the
/// next member of varying size, or to the end of the record.
template <class R>
struct RecordLayout {
    static constexpr auto fields = R::fields();
    static constexpr std::size_t count = std::tuple_size_v<decltype(fields)>;
    using Indices = std::make_index_sequence<count>;

    template <std::size_t I>
    using Member = std::remove_cvref_t<decltype(std::declval<R&>().*std::get<I>(fields).member)>;

    static constexpr std::size_t mapStartSize = 4 + R::wireType.size();

    static constexpr std::array<MemberPlace, count> places =
        []<std::size_t... I>(std::index_sequence<I...>) {
        std::array<MemberPlace, count> result{};
        std::size_t at = mapStartSize;
        const auto place = [&at](std::string_view key, std::size_t size) {
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
        const auto tag = [&result](std::size_t at, std::size_t size) {
            if (size != 0)
                result[at] = size == sizeOfBool ? 'F' : size == sizeOfInt32 ? 'I' : 'L';
        };
        (tag(places[I].value, fixedSize<Member<I>>), ...);
        result.back() = 'z';
        return result;
    }
    (Indices{});

    static constexpr std::string_view mapStart{image.data(), mapStartSize};

    /// The key of member `i` as it stands on the wire.
    static constexpr std::string_view key(std::size_t i) {
        return {image.data() + places[i].key, places[i].value - places[i].key};
    }

    /// The member whose key is `name`, or `count`.
    static std::size_t find(std::string_view name) {
        std::size_t i = 0;
        while (i < count && key(i).substr(3) != name)
            ++i;
        return i;
    }

    static constexpr bool startsRun(std::size_t i) { return i == 0 || !places[i - 1].fixed; }

    /// Where the run that holds the key of member `i` begins and ends in the image.
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

    /// The last run doesn't reach the end of the record.
    static constexpr bool endsOpen = count == 0 || !places.back().fixed;
};

} // namespace detail
} // namespace hessianser
