// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/http_call_dispatcher.h"

#include <memory>
#include <thread>
#include <utility>

#include "base/secret.h"
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

std::string carry(HttpExchange& exchange, const Target& target, const std::string& request) {
    exchange.connect(target.host, target.port);
    return exchange.post(target.host, target.port, target.path, request);
}

/// Abandons the thread of the call if the caller gives up. The thread owns all that it needs.
std::string carryBeside(const std::shared_ptr<HttpExchange>& exchange, const Target& target,
                        const std::string& request) {
    const auto reply =
        std::make_shared<PendingReply>([exchange](const std::string&) { exchange->abandon(); });
    std::thread([exchange, target, reply, kept = base::Secret(request)] {
        try {
            std::string body = carry(*exchange, target, kept.text());
            const base::WipedAtEnd guard(body); // unless the caller has taken it
            reply->succeed(body);
        } catch (...) {
            reply->fail(std::current_exception());
        }
    }).detach();
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
    std::string reply = CallPassage::hook() ? carryBeside(exchange, target, request)
                                            : carry(*exchange, target, request);

    trace.step("CHttpCallDispatcher::sendRequest LEAVE");
    return reply;
}

} // namespace hessiancln
