// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "hessian/value.h"
#include "simulator/objects/describe.h"
#include "simulator/objects/failures.h"
#include "simulator/objects/references.h"

/// Arguments and results of calls, by the C++ types of a handler. Besides the kinds of the wire,
/// there are
///
///     std::shared_ptr<C>               an object of the remote class C, never null
///     Nullable<C>                      the same, or null
///     std::vector<std::shared_ptr<C>>  a list of them
///     Secret                           a string that is hidden in logs
///     std::vector<const R*>            as a result only, records that aren't copied
namespace simulator {

/// Appends `result` to a reply; objects are handed out as references.
template <class T>
void writeResult(const T& result, References& references, std::string& out);

/// Reads one argument. Throws `Violation` or `serialize_exception` if it is of another kind.
template <class T>
T readArgument(hessianser::Cursor& in, References& references);

namespace detail {

template <class C>
std::shared_ptr<C> readReference(hessianser::Cursor& in, References& references) {
    const hessianser::Remote remote = hessianser::readRemote(in);
    const std::string expected = "com.norvel.api." + std::string(C::family);
    if (remote.type != expected)
        throw Violation("an object is sent as '" + remote.type + "' in place of '" + expected +
                        "'");
    auto object = std::dynamic_pointer_cast<C>(references.resolve(remote.url));
    if (!object)
        throw Violation("the object " + remote.url + " is no " + std::string(C::family));
    return object;
}

/// The bytes of a value must be exactly those of the writer of its kind: keys in order, lists
/// without type and length. Logs show it as a `Shown`.
template <class T, class Shown = T>
T readCanonical(hessianser::Cursor& in) {
    const char* const begin = in.pos;
    T value = hessianser::readValue<T>(in);
    std::string canonical;
    hessianser::writeValue(value, canonical);
    if (canonical != std::string_view(begin, static_cast<std::size_t>(in.pos - begin)))
        throw Violation("the value " + describe(Shown{value}) + " isn't written as its kind is");
    return value;
}

} // namespace detail

template <class T>
T readArgument(hessianser::Cursor& in, References& references) {
    if constexpr (IsObject<T>::value) {
        return detail::readReference<typename T::element_type>(in, references);
    } else if constexpr (IsNullable<T>::value) {
        if (!in.at('N'))
            return T{detail::readReference<typename T::Class>(in, references)};
        hessianser::readNull(in);
        return T{};
    } else if constexpr (IsObjectList<T>::value) {
        if (in.startsWith("Vt") || in.startsWith("Vl"))
            throw Violation("a list isn't written as its kind is");
        T list;
        if (hessianser::readListStart(in))
            do
                list.push_back(readArgument<typename T::value_type>(in, references));
            while (hessianser::readListContinues(in));
        return list;
    } else if constexpr (std::is_same_v<T, Secret>) {
        return Secret{detail::readCanonical<std::string, Secret>(in)};
    } else {
        return detail::readCanonical<T>(in);
    }
}

template <class T>
void writeResult(const T& result, References& references, std::string& out) {
    if constexpr (IsObject<T>::value) {
        if (result)
            hessianser::writeRemote("com.norvel.api." + result->className(),
                                    references.handOut(result), out);
        else
            hessianser::writeNull(out);
    } else if constexpr (IsObjectList<T>::value) {
        out.push_back('V');
        for (const auto& object : result)
            writeResult(object, references, out);
        hessianser::writeEnd(out);
    } else if constexpr (IsRowList<T>::value) {
        std::size_t size = std::size_t{2} * hessianser::sizeOfEnd;
        for (const auto* row : result)
            size += hessianser::sizeOfValue(*row);
        out.reserve(out.size() + size + hessianser::sizeOfEnd);
        out.push_back('V');
        for (const auto* row : result)
            hessianser::writeValue(*row, out);
        hessianser::writeEnd(out);
    } else {
        out.reserve(out.size() + hessianser::sizeOfValue(result) + hessianser::sizeOfEnd);
        hessianser::writeValue(result, out);
    }
}

} // namespace simulator
