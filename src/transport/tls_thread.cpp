// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/tls_thread.h"

#include <openssl/crypto.h>

namespace hessiancln {

void freeTlsAtThreadEnd() {
    // Ends after the objects that the thread's function holds, which may use TLS once more.
    struct AtEnd {
        ~AtEnd() { OPENSSL_thread_stop(); }
    };
    static thread_local const AtEnd atEnd;
    static_cast<void>(atEnd);
}

} // namespace hessiancln
