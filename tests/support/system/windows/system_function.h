// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <windows.h>

namespace support {

/// The system's own function, for a test program that replaces it. A test replaces a function by
/// defining `__imp_<name>`, the pointer that calls of an imported function jump through: the linker
/// takes it before the system's. It defines the function itself if the system's header doesn't
/// declare it as imported.
template <class Function>
Function systemFunction(const wchar_t* library, const char* name) {
    const FARPROC found = GetProcAddress(LoadLibraryW(library), name);
    return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
}

} // namespace support
