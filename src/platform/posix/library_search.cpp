// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/library_search.h"

namespace platform {

void restrictLibrarySearch() {}

} // namespace platform
