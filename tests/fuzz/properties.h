// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <tuple>

#include "hessian/value.h"

/// Properties that hold for any input bytes.
namespace fuzz {

/// The bytes from libFuzzer, which are in a buffer of exactly their size.
inline std::string_view asText(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Aborts the program, which is how a finding is reported.
inline void require(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

/// Equal in wire form.
template <class T>
bool same(const T& a, const T& b) {
    if constexpr (hessianser::Record<T>) {
        return std::apply(
            [&](const auto&... field) { return (same(a.*field.member, b.*field.member) && ...); },
            T::fields());
    } else if constexpr (hessianser::List<T>) {
        if (a.size() != b.size())
            return false;
        for (std::size_t i = 0; i < a.size(); ++i)
            if (!same<typename T::value_type>(a[i], b[i]))
                return false;
        return true;
    } else if constexpr (hessianser::Enumeration<T>) {
        // A missing member keeps its 0, which may be undeclared.
        const auto folded = [](T value) {
            return hessianser::enumerationFrom<T>(static_cast<std::int32_t>(value));
        };
        return folded(a) == folded(b);
    } else {
        return a == b;
    }
}

/// A value that was read can be written, its size is computed correctly, and it reads back the
/// same.
template <class T>
void requireRoundTrip(const T& value) {
    std::string out;
    hessianser::writeValue(value, out);
    require(hessianser::sizeOfValue(value) == out.size(), "the size is that of the bytes written");
    hessianser::Cursor in(out);
    require(same(hessianser::readValue<T>(in), value), "what is written reads the same");
    require(in.remaining == 0, "all that is written is read");
}

} // namespace fuzz
