// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace platform {

/// The system's number of this process.
long processId();

/// The system's number of the calling thread, as its own tools show it.
long threadId();

} // namespace platform
