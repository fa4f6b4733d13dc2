// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/names.h"

#include <algorithm>

namespace simulator {
namespace {

constexpr std::string_view unixRoot = "/\\";

char lower(char c) {
    return 'A' <= c && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

std::vector<std::string_view> namesOf(std::string_view path) {
    std::vector<std::string_view> names;
    while (!path.empty()) {
        const std::size_t size = std::min(path.find('\\'), path.size());
        names.push_back(path.substr(0, size));
        path.remove_prefix(std::min(size + 1, path.size()));
    }
    return names;
}

std::string_view lastName(std::string_view path) {
    const auto names = namesOf(path);
    return names.empty() ? path : names.back();
}

std::string lowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), lower);
    return text;
}

bool agreeWithoutCase(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return lower(a) == lower(b); });
}

std::string nativePath(std::string_view path) {
    if (!path.starts_with(unixRoot))
        return std::string(path);
    std::string native = "/" + std::string(path.substr(unixRoot.size()));
    std::replace(native.begin(), native.end(), '\\', '/');
    return native;
}

} // namespace simulator
