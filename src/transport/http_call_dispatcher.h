// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "transport/i_call_dispatcher.h"

namespace hessiancln {

/// What an answer may take of time and memory.
struct HttpLimits {
    /// For each wait on the network.
    std::chrono::milliseconds readTimeout = std::chrono::seconds(7200);
    /// Bytes of content.
    std::uint64_t largestContent = 0x40000000;
};

/// Carries each call as one HTTP or HTTPS POST on a connection of its own: on the thread of the
/// caller, or on one beside it where the caller has a hook to wait with.
class CHttpCallDispatcher final : public ICallDispatcher {
public:
    CHttpCallDispatcher(std::uint32_t traceLevel, std::string traceFile, HttpLimits limits = {});
    ~CHttpCallDispatcher() override;

    std::string sendRequest(const std::string& url, const std::string& request) override;

private:
    std::string exchange(const std::string& url, const std::string& request);

    HttpLimits limits_;
};

} // namespace hessiancln
