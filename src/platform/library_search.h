// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace platform {

/// From now on, libraries that this process loads by name come from the program's folder or from
/// the system: never from the current directory, where anyone may have put one, nor from the search
/// path. Does nothing on systems that never look there.
void restrictLibrarySearch();

} // namespace platform
