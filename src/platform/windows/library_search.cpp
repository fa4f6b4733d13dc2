// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/library_search.h"

#include <windows.h>

namespace platform {

void restrictLibrarySearch() {
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
    // For functions that the first call doesn't affect, such as SearchPath.
    SetDllDirectoryW(L"");
}

} // namespace platform
