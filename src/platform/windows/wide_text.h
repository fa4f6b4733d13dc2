// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Converts UTF-8 to the system's own text and back. Invalid parts become U+FFFD.
std::wstring toWide(std::string_view utf8);
std::string toUtf8(std::wstring_view wide);

} // namespace platform
