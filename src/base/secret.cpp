// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "base/secret.h"

#include <openssl/crypto.h>

namespace base {

void wipe(void* memory, std::size_t size) noexcept {
    OPENSSL_cleanse(memory, size);
}

void wipe(std::string& text) noexcept {
    // A short text is stored in the object itself, and a move leaves its characters there.
    if (text.capacity() == std::string().capacity())
        text.resize(text.capacity());
    wipe(text.data(), text.size());
    text.clear();
}

} // namespace base
