// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "tests/support/loopback_server.h"
#include "transport/i_call_dispatcher.h"
#include "transport/invoke_exception.h"

/// Holds for both plain and TLS streams.
class RawStream : public testing::TestWithParam<support::LoopbackServer::Mode> {
protected:
    /// The system's text for the end of a stream whose peer closed abruptly. TLS distinguishes it
    /// from a proper end, as "stream truncated".
    static std::string cut() {
        return GetParam() == support::LoopbackServer::Mode::tls ? "stream truncated (1)"
                                                                : "End of file (2)";
    }
};

/// The text that the call throws.
inline std::string failureOf(hessiancln::ICallDispatcher& dispatcher, const std::string& url,
                             const std::string& request = "ping") {
    try {
        dispatcher.sendRequest(url, request);
        return "no failure";
    } catch (const hessiancln::invoke_exception& failure) {
        return failure.what();
    }
}

#define TARN_ON_PLAIN_AND_TLS(suite)                                                               \
    INSTANTIATE_TEST_SUITE_P(                                                                      \
        Both, suite,                                                                               \
        testing::Values(support::LoopbackServer::Mode::plain, support::LoopbackServer::Mode::tls), \
        [](const auto& mode) {                                                                     \
            return mode.param == support::LoopbackServer::Mode::tls ? "Tls" : "Plain";             \
        })
