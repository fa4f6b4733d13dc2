// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace hessiancln {

/// Frees what OpenSSL keeps for this thread, at its end. Every thread of ours that may use TLS
/// calls this: linked statically on Windows, OpenSSL doesn't notice the end of a thread.
void freeTlsAtThreadEnd();

} // namespace hessiancln
