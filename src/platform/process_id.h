// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace platform {

/// The process ID of this process.
long processId();

/// The system ID of the calling thread, as the system's tools show it.
long threadId();

} // namespace platform
