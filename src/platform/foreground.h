// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace platform {

/// Lets any other process take the foreground next. Does nothing on systems where a process needs
/// no permission for that.
void allowSetForeground();

} // namespace platform
