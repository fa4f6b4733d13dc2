// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

#include "hessian/kinds.h"

/// Human-readable arguments for a call log: `setName("Documents")`, `Stop()`,
/// `setStartTime({hour=20, minute=30, second=0})`. Passwords and keys show as ***.
namespace simulator {

/// A text that must not appear in logs.
struct Secret {
    std::string text;
};

/// An object or null.
template <class C>
struct Nullable {
    using Class = C;
    std::shared_ptr<C> object;
};

template <class T>
struct IsObject : std::false_type {};
template <class C>
struct IsObject<std::shared_ptr<C>> : std::true_type {};

template <class T>
struct IsObjectList : std::false_type {};
template <class C>
struct IsObjectList<std::vector<std::shared_ptr<C>>> : std::true_type {};

template <class T>
struct IsRowList : std::false_type {};
template <class R>
struct IsRowList<std::vector<const R*>> : std::true_type {};

template <class T>
struct IsNullable : std::false_type {};
template <class C>
struct IsNullable<Nullable<C>> : std::true_type {};

/// Elements beyond this number are only counted.
inline constexpr std::size_t describedElements = 50;

template <class T>
std::string describe(const T& value);

/// In quotes, with quotes, backslashes and line breaks escaped.
std::string inQuotes(std::string_view text);

/// Whether a record's member with this key holds a password or an encryption key.
bool isSecretKey(std::string_view key);

namespace detail {

template <class T>
std::string describeMember(std::string_view key, const T& value) {
    const bool secret = hessianser::String<T> && isSecretKey(key);
    return std::string(key) + "=" + (secret ? "***" : describe(value));
}

template <class R>
std::string describeRecord(const R& record) {
    std::string text;
    const auto add = [&](const auto& field) {
        text += text.empty() ? "{" : ", ";
        text += describeMember(field.key, record.*field.member);
    };
    std::apply([&](const auto&... field) { (add(field), ...); }, R::fields());
    return text + "}";
}

template <class L>
std::string describeList(const L& list) {
    std::string text = "[";
    for (std::size_t i = 0; i < std::min(list.size(), describedElements); ++i)
        text += (i == 0 ? "" : ", ") + describe(list[i]);
    if (list.size() > describedElements)
        text += ", and " + std::to_string(list.size() - describedElements) + " more";
    return text + "]";
}

} // namespace detail

template <class T>
std::string describe(const T& value) {
    if constexpr (std::is_same_v<T, Secret>)
        return "***";
    else if constexpr (IsNullable<T>::value)
        return value.object ? value.object->label() : "null";
    else if constexpr (IsObject<T>::value)
        return value ? value->label() : "null";
    else if constexpr (hessianser::Boolean<T>)
        return value ? "true" : "false";
    else if constexpr (hessianser::Enumeration<T>)
        return std::to_string(static_cast<std::int32_t>(value));
    else if constexpr (hessianser::Int32<T> || hessianser::Int64<T>)
        return std::to_string(value);
    else if constexpr (hessianser::String<T>)
        return inQuotes(value);
    else if constexpr (hessianser::Bytes<T>)
        return '<' + std::to_string(value.size()) + " bytes>";
    else if constexpr (hessianser::Record<T>)
        return detail::describeRecord(value);
    else
        return detail::describeList(value);
}

} // namespace simulator
