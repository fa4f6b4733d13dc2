// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/tls_thread.h"

#include <memory>

#include <gtest/gtest.h>
#include <openssl/err.h>

namespace {

/// Leaves an error in the thread's queue when it is destroyed.
struct Leaving {
    Leaving() = default;
    Leaving(const Leaving&) = delete;
    Leaving& operator=(const Leaving&) = delete;
    ~Leaving() { ERR_raise(ERR_LIB_USER, 1); }
};

TEST(TlsThread, FreesWhatOpenSslKeepsAfterDestroyingTheWork) {
    unsigned long during = 0;
    auto run = hessiancln::tlsThread([held = std::make_unique<Leaving>(), &during] {
        ERR_raise(ERR_LIB_USER, 2);
        during = ERR_peek_error();
    });
    run();
    EXPECT_NE(during, 0U);
    EXPECT_EQ(ERR_peek_error(), 0U);
}

} // namespace
