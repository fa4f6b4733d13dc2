// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/tls_thread.h"

#include <openssl/crypto.h>

namespace hessiancln {

void freeTlsOfThread() {
    OPENSSL_thread_stop();
}

} // namespace hessiancln
