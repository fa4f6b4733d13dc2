// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace platform {

/// The folder of the toolkit's plug-ins, in UTF-8, if the toolkit can't know it before the
/// application object exists: the program's own on Windows. Empty elsewhere, and if the system
/// doesn't name it.
std::string pluginFolder();

} // namespace platform
