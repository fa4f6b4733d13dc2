// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "call_timer.h"

#include <utility>

#include "hessian/reader.h"
#include "simulator/call_head.h"

namespace bench {

CallTimer::CallTimer(boost::shared_ptr<hessiancln::ICallDispatcher> inner)
    : ICallDispatcher(0, "")
    , inner_(std::move(inner)) {}

std::string CallTimer::sendRequest(const std::string& url, const std::string& request) {
    hessianser::Cursor head(request);
    TimedCall call{simulator::readCallHead(head), Clock::now(), {}};
    std::string reply = inner_->sendRequest(url, request);
    call.end = Clock::now();
    calls_.push_back(std::move(call));
    return reply;
}

void CallTimer::asyncSendRequest(const std::string& url, const std::string& request,
                                 Handler onSuccess, Handler onFailure) {
    inner_->asyncSendRequest(url, request, std::move(onSuccess), std::move(onFailure));
}

void CallTimer::stopConnections() {
    inner_->stopConnections();
}

std::vector<TimedCall> CallTimer::take() {
    return std::exchange(calls_, {});
}

} // namespace bench
