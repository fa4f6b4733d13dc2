// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace platform {

/// Reports an error to the system's event log under the name `source`. Best effort: if the log is
/// unreachable, the error is dropped. Doesn't throw.
void reportError(const std::string& source, const std::string& text);

} // namespace platform
