// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <concepts>
#include <exception>
#include <string>
#include <string_view>

namespace base {

/// An exception whose text is built by streaming strings and numbers into it:
///
///     throw serialize_exception() << "Not a map start at " << offset;
///
/// `Derived` is the exception itself, so that streaming keeps the type that is thrown.
template <class Derived>
class StreamedException : public std::exception {
public:
    StreamedException() = default;
    explicit StreamedException(std::string_view text)
        : text_(text) {}

    Derived& operator<<(std::string_view part) {
        text_ += part;
        return static_cast<Derived&>(*this);
    }

    template <std::integral Number>
    requires(!std::same_as<Number, bool> && !std::same_as<Number, char>) Derived&
    operator<<(Number number) {
        return *this << std::string_view(std::to_string(number));
    }

    const char* what() const noexcept override { return text_.c_str(); }

private:
    std::string text_;
};

} // namespace base
