// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/raw_stream_dispatcher.h"

#include <condition_variable>
#include <exception>
#include <thread>
#include <utility>

#include "transport/call_failure.h"
#include "transport/call_passage.h"
#include "transport/parse_url.h"
#include "transport/single_stream_connection.h"
#include "transport/tls_thread.h"
#include "transport/tracer.h"

namespace hessiancln {

namespace {

ConnectionKey endpointOf(const std::string& url) {
    ConnectionKey key;
    std::string path;
    parseUrl(url, key.useTls, key.host, path, key.port);
    return key;
}

} // namespace

/// Ends connections on detached threads, and knows when the last of them is done.
class CRawStreamDispacher::Teardowns {
public:
    static void begin(const std::shared_ptr<Teardowns>& teardowns, ConnectionPtr connection) {
        {
            const std::lock_guard lock(teardowns->mutex_);
            ++teardowns->running_;
        }
        try {
            auto run = tlsThread([connection]() mutable { end(connection); });
            std::thread([teardowns, run = std::move(run)]() mutable {
                run();
                teardowns->done();
            }).detach();
        } catch (const std::exception&) {
            // No thread or no memory for one, so the caller waits.
            end(connection);
            teardowns->done();
        }
    }

    void waitForAll() {
        std::unique_lock lock(mutex_);
        none_.wait(lock, [this] { return running_ == 0; });
    }

private:
    static void end(ConnectionPtr& connection) {
        try {
            connection->WaitForStop();
        } catch (const trace_exception&) {
            // The connection has ended anyway, and its caller is gone.
        }
        connection.reset();
    }

    void done() {
        const std::lock_guard lock(mutex_);
        --running_;
        none_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable none_;
    int running_ = 0;
};

CRawStreamDispacher::CRawStreamDispacher(std::uint32_t traceLevel, std::string traceFile,
                                         bool reuseConnections)
    : ICallDispatcher(traceLevel, std::move(traceFile))
    , reuseConnections_(reuseConnections)
    , teardowns_(std::make_shared<Teardowns>()) {}

CRawStreamDispacher::~CRawStreamDispacher() {
    try {
        CRawStreamDispacher::stopConnections();
    } catch (const trace_exception&) {
        // It is in the event log, and every connection has ended.
    }
    teardowns_->waitForAll();
}

std::string CRawStreamDispacher::sendRequest(const std::string& url, const std::string& request) {
    return asCall([&] { return send(url, request); });
}

std::string CRawStreamDispacher::send(const std::string& url, const std::string& request) {
    const Tracer trace(traceLevel(), traceFile());
    trace.step("CRawStreamDispacher::sendRequest ENTER");
    const CallPassage passage;
    const ConnectionKey key = endpointOf(url);
    std::string response;
    if (reuseConnections_)
        connectionFor(key)->SendRequest(url, request, response);
    else
        response = sendOnFreshConnection(key, url, request);
    trace.step("CRawStreamDispacher::sendRequest LEAVE");
    return response;
}

CRawStreamDispacher::ConnectionPtr CRawStreamDispacher::connectionFor(const ConnectionKey& key) {
    const std::lock_guard lock(connectionMutex_);
    ConnectionPtr& connection = connections_[key];
    if (!connection || !connection->isOpen())
        connection = CSingleStreamDispatcherConnection::start(key, traceLevel(), traceFile());
    return connection;
}

std::string CRawStreamDispacher::sendOnFreshConnection(const ConnectionKey& key,
                                                       const std::string& url,
                                                       const std::string& request) {
    const ConnectionPtr connection =
        CSingleStreamDispatcherConnection::start(key, traceLevel(), traceFile());
    std::string response;
    try {
        connection->SendRequest(url, request, response);
    } catch (const std::exception&) {
        // A stream that is up despite the failure would stay open.
        if (!connection->hasDied())
            Teardowns::begin(teardowns_, connection);
        throw;
    }
    Teardowns::begin(teardowns_, connection);
    return response;
}

void CRawStreamDispacher::asyncSendRequest(const std::string& url, const std::string& request,
                                           Handler onSuccess, Handler onFailure) {
    asCall([&] { asyncSend(url, request, std::move(onSuccess), std::move(onFailure)); });
}

void CRawStreamDispacher::asyncSend(const std::string& url, const std::string& request,
                                    Handler onSuccess, Handler onFailure) {
    const Tracer trace(traceLevel(), traceFile());
    trace.step("CRawStreamDispacher::asyncSendRequest ENTER");
    const ConnectionKey key = endpointOf(url);
    ConnectionPtr connection;
    {
        const std::lock_guard lock(connectionMutex_);
        ConnectionPtr& known = connections_[key];
        if (!known)
            known = CSingleStreamDispatcherConnection::start(key, 0, "");
        connection = known;
    }
    connection->asyncSendRequest(url, request, std::move(onSuccess), std::move(onFailure));
    trace.step("CRawStreamDispacher::asyncSendRequest LEAVE");
}

void CRawStreamDispacher::stopConnections() {
    // The mutex isn't held while a connection's thread ends, because one of its handlers may be
    // about to make the next call here.
    std::map<ConnectionKey, ConnectionPtr> ending;
    {
        const std::lock_guard lock(connectionMutex_);
        ending.swap(connections_);
    }
    std::exception_ptr traceFailure;
    for (const auto& [key, connection] : ending) {
        try {
            if (connection)
                connection->WaitForStop();
        } catch (const trace_exception&) {
            traceFailure = std::current_exception();
        }
    }
    if (traceFailure)
        std::rethrow_exception(traceFailure);
}

} // namespace hessiancln
