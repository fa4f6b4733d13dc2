// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/plugin_folder.h"

namespace platform {

std::string pluginFolder() {
    return {};
}

} // namespace platform
