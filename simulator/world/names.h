// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Names and paths made of them, joined with backslashes on every system.
namespace simulator {

/// The names of a path from the top down; empty for an empty path. Ignores a trailing backslash.
std::vector<std::string_view> namesOf(std::string_view path);

/// The last name of a path.
std::string_view lastName(std::string_view path);

/// Converts ASCII letters only.
std::string lowerCase(std::string text);

/// Whether two texts are equal, ignoring the case of ASCII letters.
bool agreeWithoutCase(std::string_view one, std::string_view other);

/// The path in the notation of its own system: "/\home" is "/home".
std::string nativePath(std::string_view path);

} // namespace simulator
