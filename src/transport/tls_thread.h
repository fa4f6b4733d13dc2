// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <utility>

namespace hessiancln {

/// Frees what OpenSSL keeps for this thread.
void freeTlsOfThread();

/// The function of a thread that may use TLS: runs `work`, destroys it with all it holds, and frees
/// what OpenSSL keeps for the thread. Every thread of ours that may use TLS runs one: linked
/// statically on Windows, OpenSSL doesn't notice the end of a thread. A destructor of a
/// thread-local object can't do it: it runs under a lock of the compiler's runtime and then takes
/// that of the DLLs, so that two threads ending at the same time could block each other.
template <class Work>
auto tlsThread(Work work) {
    return [held = std::optional<Work>(std::move(work))]() mutable {
        (*held)();
        held.reset();
        freeTlsOfThread();
    };
}

} // namespace hessiancln
