// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "transport/i_call_dispatcher.h"

namespace bench {

using Clock = std::chrono::steady_clock;

/// A call that blocked its caller.
struct TimedCall {
    std::string method;
    Clock::time_point begin;
    Clock::time_point end;
};

/// Records how long each call through it takes. Blocking calls may come from one thread only;
/// asynchronous ones aren't timed.
class CallTimer final : public hessiancln::ICallDispatcher {
public:
    explicit CallTimer(boost::shared_ptr<hessiancln::ICallDispatcher> inner);

    std::string sendRequest(const std::string& url, const std::string& request) override;
    void asyncSendRequest(const std::string& url, const std::string& request, Handler onSuccess,
                          Handler onFailure) override;
    void stopConnections() override;

    /// The calls since the last `take`, in order.
    std::vector<TimedCall> take();

private:
    boost::shared_ptr<hessiancln::ICallDispatcher> inner_;
    std::vector<TimedCall> calls_;
};

} // namespace bench
