// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/http_call_dispatcher.h"

#include <utility>

#include "transport/call_failure.h"
#include "transport/http_exchange.h"
#include "transport/parse_url.h"
#include "transport/tracer.h"

namespace hessiancln {

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

    bool useTls = false;
    std::string host;
    std::string path;
    std::uint32_t port = 0;
    parseUrl(url, useTls, host, path, port);
    trace.detail("parseURL: ", host, " port: ", port);

    HttpExchange exchange(useTls, limits_, trace);
    exchange.connect(host, port);
    std::string reply = exchange.post(host, port, path, request);

    trace.step("CHttpCallDispatcher::sendRequest LEAVE");
    return reply;
}

} // namespace hessiancln
