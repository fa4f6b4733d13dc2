// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "hessian/writer.h"

/// The closed set of value kinds on the wire, distinguished by C++ type.
namespace hessianser {

/// Numbers from `first` to `last`, both included.
struct EnumRange {
    std::int32_t first;
    std::int32_t last;
};

/// Describes an enumeration: a function beside it, found by argument-dependent lookup, as in
///
///     enum class EventLogType : std::int32_t { Info, Warning, Error };
///     constexpr auto declaredValues(EventLogType) { return hessianser::values({{0, 2}}); }
///
/// A number outside the ranges reads as the reserved value. Ranges that don't ascend don't compile.
template <std::size_t N>
consteval std::array<EnumRange, N> values(const EnumRange (&ranges)[N]) {
    for (std::size_t i = 0; i < N; ++i)
        if (ranges[i].first > ranges[i].last || (i > 0 && ranges[i].first <= ranges[i - 1].last))
            throw "the ranges of an enumeration have to ascend";
    return std::to_array(ranges);
}

template <class T>
concept Boolean = std::same_as<T, bool>;

template <class T>
concept Int32 = std::same_as<T, std::int32_t> || std::same_as<T, std::uint32_t>;

template <class T>
concept Int64 = std::same_as<T, std::int64_t> || std::same_as<T, std::uint64_t>;

template <class T>
concept String = std::same_as<T, std::string>;

template <class T>
concept Bytes = std::same_as<T, Binary>;

template <class T>
concept Enumeration =
    std::is_enum_v<T> && std::same_as<std::underlying_type_t<T>, std::int32_t> && requires {
    declaredValues(T{});
};

/// The value that represents every number the enumeration doesn't declare: one above its highest
/// value.
template <Enumeration E>
constexpr E reservedValue() {
    return static_cast<E>(declaredValues(E{}).back().last + 1);
}

/// The enumerator for `number`.
template <Enumeration E>
constexpr E enumerationFrom(std::int32_t number) {
    const auto ranges = declaredValues(E{});
    const bool declared = std::any_of(ranges.begin(), ranges.end(), [number](EnumRange range) {
        return range.first <= number && number <= range.last;
    });
    return declared ? static_cast<E>(number) : reservedValue<E>();
}

/// A structure that travels as a typed map. It has public members without any other state and
///
///     static constexpr std::string_view wireType = "com.norvel.api.time_in_day";
///     template <class R = time_in_day>
///     static constexpr auto fields() {
///         return hessianser::fields(field("hour", &R::hour), ...);
///     }
///
/// `fields` may be a plain function; as a template it is compiled only where the codec is used.
template <class T>
concept Record = requires {
    { T::wireType } -> std::convertible_to<std::string_view>;
    T::fields();
};

/// How one of our types represents a reference to a remote object. Specialise it with
///
///     static std::string typeName();               // type to write
///     static const std::string* url(const T&);     // null for a null reference
///     static T fromUrl(std::string url);           // value that was read; a null reads as T()
template <class T>
struct RemoteTraits;

template <class T>
concept RemoteReference = requires {
    sizeof(RemoteTraits<T>);
};

namespace detail {
template <class T>
struct ListElement;
template <class E, class A>
struct ListElement<std::vector<E, A>> {
    using type = E;
};
} // namespace detail

/// Declared after the other kinds because an element may be of any of them.
template <class T>
concept List = !Bytes<T> && requires {
    typename detail::ListElement<T>::type;
};

namespace detail {
template <class T>
constexpr bool isValue() {
    if constexpr (List<T>)
        return isValue<typename ListElement<T>::type>();
    else
        return Boolean<T> || Int32<T> || Int64<T> || String<T> || Bytes<T> || Enumeration<T> ||
               Record<T> || RemoteReference<T>;
}
} // namespace detail

template <class T>
concept Value = detail::isValue<T>();

/// Kinds with a fixed encoded size in bytes; 0 for all others.
template <class T>
inline constexpr std::size_t fixedSize = Boolean<T>                     ? sizeOfBool
                                         : (Int32<T> || Enumeration<T>) ? sizeOfInt32
                                         : Int64<T>                     ? sizeOfInt64
                                                                        : 0;

} // namespace hessianser
