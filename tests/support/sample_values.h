// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "hessian/kinds.h"
#include "hessian/record_layout.h"

/// Sample descriptions in place of the real ones: one of each kind, small enough to type their
/// bytes.
namespace support {

/// With holes: 1, and 3 to 16. Any other number reads as 17.
enum class Colour : std::int32_t {};
constexpr auto declaredValues(Colour) {
    return hessianser::values({{1, 1}, {3, 16}});
}

struct point {
    std::int32_t x = 0;
    std::int32_t y = 0;

    static constexpr std::string_view wireType = "t.point";
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("x", &point::x), field("y", &point::y));
    }
    bool operator==(const point&) const = default;
};

/// A reference to a remote object, null without a URL.
struct Handle {
    std::optional<std::string> url;
    bool operator==(const Handle&) const = default;
};

struct everything {
    bool flag = false;
    std::int32_t number = 0;
    std::uint32_t count = 0;
    std::int64_t size = 0;
    std::uint64_t total = 0;
    std::string text;
    hessianser::Binary data;
    Colour colour{};
    point where;
    std::vector<std::string> names;
    std::vector<point> path;
    Handle owner;
    std::int32_t last = 0;

    static constexpr std::string_view wireType = "t.everything";
    static constexpr auto fields() {
        using hessianser::field;
        using R = everything;
        return hessianser::fields(
            field("flag", &R::flag), field("number", &R::number), field("count", &R::count),
            field("size", &R::size), field("total", &R::total), field("text", &R::text),
            field("data", &R::data), field("colour", &R::colour), field("where", &R::where),
            field("names", &R::names), field("path", &R::path), field("owner", &R::owner),
            field("last", &R::last));
    }
    bool operator==(const everything&) const = default;
};

struct nothing {
    static constexpr std::string_view wireType = "t.nothing";
    static constexpr auto fields() { return hessianser::fields(); }
    bool operator==(const nothing&) const = default;
};

/// Its variable-size members are at both ends.
struct label {
    std::string name;
    bool shown = false;
    std::string value;

    static constexpr std::string_view wireType = "t.label";
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("name", &label::name), field("shown", &label::shown),
                                  field("value", &label::value));
    }
    bool operator==(const label&) const = default;
};

} // namespace support

template <>
struct hessianser::RemoteTraits<support::Handle> {
    static std::string typeName() { return "t.Handle"; }
    static const std::string* url(const support::Handle& handle) {
        return handle.url ? &*handle.url : nullptr;
    }
    static support::Handle fromUrl(std::string url) { return {std::move(url)}; }
};
