// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "transport/i_call_dispatcher.h"

namespace hessiancln {

/// Time and memory limits for a response.
struct HttpLimits {
    /// Applies to each wait on the network.
    std::chrono::milliseconds readTimeout = std::chrono::seconds(7200);
    /// Maximum content length in bytes.
    std::uint64_t largestContent = 0x40000000;
};

/// Carries each call as one HTTP or HTTPS POST on its own connection: on the caller's thread, or on
/// a separate thread if the caller has a wait hook.
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
