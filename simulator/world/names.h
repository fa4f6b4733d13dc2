// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Names and the paths that they make, joined with backslashes on every system.
namespace simulator {

/// The names of a path from the top down; none if it is empty. A backslash at its end is ignored.
std::vector<std::string_view> namesOf(std::string_view path);

/// The last name of a path.
std::string_view lastName(std::string_view path);

/// ASCII letters only.
std::string lowerCase(std::string text);

/// Whether two texts agree but for the case of ASCII letters.
bool agreeWithoutCase(std::string_view one, std::string_view other);

/// The path as its own system writes it: "/\home" is "/home".
std::string nativePath(std::string_view path);

} // namespace simulator
