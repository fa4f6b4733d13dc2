// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/http_call_dispatcher.h"

#include <memory>
#include <utility>

#include "transport/call_failure.h"
#include "transport/call_passage.h"
#include "transport/http_exchange.h"
#include "transport/parse_url.h"
#include "transport/pending_reply.h"
#include "transport/tracer.h"

namespace hessiancln {

namespace {

struct Target {
    bool useTls = false;
    std::string host;
    std::string path;
    std::uint32_t port = 0;
};

/// A quick exchange runs on the caller's thread: starting another one would slow it down. A slow
/// one moves to a thread of its own while the caller waits with its hook.
std::string carry(const std::shared_ptr<HttpExchange>& exchange,
                  const std::shared_ptr<PendingReply>& reply) {
    const auto runToEnd = [exchange] {
        exchange->run();
        return exchange->takeReply();
    };
    if (!CallPassage::hook())
        return runToEnd();
    if (exchange->runFor(reply->patience()))
        return exchange->takeReply();
    answerBeside(reply, runToEnd);
    return reply->wait();
}

} // namespace

CHttpCallDispatcher::CHttpCallDispatcher(std::uint32_t traceLevel, std::string traceFile,
                                         HttpLimits limits)
    : ICallDispatcher(traceLevel, std::move(traceFile))
    , limits_(limits) {}

CHttpCallDispatcher::~CHttpCallDispatcher() {
    stopWorkers();
}

std::string CHttpCallDispatcher::sendRequest(const std::string& url, const std::string& request) {
    return asCall([&] { return exchange(url, request); });
}

std::string CHttpCallDispatcher::exchange(const std::string& url, const std::string& request) {
    const Tracer trace(traceLevel(), traceFile());
    trace.step("CHttpCallDispatcher::sendRequest ENTER");

    const CallPassage passage;
    Target target;
    parseUrl(url, target.useTls, target.host, target.path, target.port);
    trace.detail("parseURL: ", target.host, " port: ", target.port);

    const auto exchange = std::make_shared<HttpExchange>(target.useTls, limits_, trace);
    const auto reply =
        std::make_shared<PendingReply>([exchange](const std::string&) { exchange->abandon(); });
    if (reply->finished())
        return reply->wait(); // fails
    exchange->start(target.host, target.port, target.path, request);
    std::string body = carry(exchange, reply);

    trace.step("CHttpCallDispatcher::sendRequest LEAVE");
    return body;
}

} // namespace hessiancln
