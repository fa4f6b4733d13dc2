// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/single_stream_connection.h"

#include <algorithm>
#include <utility>

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/post.hpp>
#include <boost/make_shared.hpp>

#include "transport/tls_thread.h"

namespace hessiancln {

namespace asio = boost::asio;

namespace {

constexpr std::size_t unwrittenLimit = 16;

} // namespace

boost::shared_ptr<CSingleStreamDispatcherConnection>
CSingleStreamDispatcherConnection::start(const ConnectionKey& key, std::uint32_t traceLevel,
                                         const std::string& traceFile,
                                         std::uint32_t lastRequestId) {
    auto connection = boost::make_shared<CSingleStreamDispatcherConnection>(
        key, traceLevel, traceFile, lastRequestId);
    try {
        connection->thread_ = std::thread(tlsThread([connection] { connection->run(); }));
    } catch (const std::system_error& failure) {
        throw invoke_exception() << "Failed to start a connection thread: " << failure.what();
    }
    return connection;
}

CSingleStreamDispatcherConnection::CSingleStreamDispatcherConnection(const ConnectionKey& key,
                                                                     std::uint32_t traceLevel,
                                                                     const std::string& traceFile,
                                                                     std::uint32_t lastRequestId)
    : key_(key)
    , trace_(traceLevel, traceFile)
    , nextRequestId_(lastRequestId) {}

CSingleStreamDispatcherConnection::~CSingleStreamDispatcherConnection() {
    // A connection that was never stopped ends on its own thread, with the last reference.
    if (thread_.joinable())
        thread_.detach();
    // Leftovers of a reply that failed midway.
    base::wipe(data_);
}

void CSingleStreamDispatcherConnection::SendRequest(const std::string& url,
                                                    const std::string& request,
                                                    std::string& response) {
    trace_.step("CSingleStreamDispatcherConnection::SendRequest ENTER");
    // A handler would wait for its own thread.
    if (std::this_thread::get_id() == streamThread_)
        throw invoke_exception("A handler can't wait for a reply on its own connection");

    const auto reply =
        std::make_shared<PendingReply>([this](const std::string& text) { giveUp(text); });
    if (!reply->finished())
        send(url, request, reply);
    try {
        response = reply->wait();
    } catch (const invoke_exception&) {
        trace_.step("CSingleStreamDispatcherConnection::SendRequest EXCEPTION");
        throw;
    }
    trace_.step("CSingleStreamDispatcherConnection::SendRequest LEAVE");
}

void CSingleStreamDispatcherConnection::send(const std::string& url, const std::string& request,
                                             const std::shared_ptr<PendingReply>& reply) {
    Calls call = newCall(url, request);
    call.front()->succeed = [reply](std::string& body) { reply->succeed(body); };
    call.front()->fail = [reply](const std::string& text) { reply->fail(text); };
    {
        const std::lock_guard lock(writeMutex_);
        ++writeCount_;
    }
    if (!submit(call))
        reply->fail(errorText());
}

void CSingleStreamDispatcherConnection::asyncSendRequest(const std::string& url,
                                                         const std::string& request,
                                                         Handler onSuccess, Handler onFailure) {
    trace_.step("CSingleStreamDispatcherConnection::asyncSendRequest ENTER");
    Calls call = newCall(url, request);
    call.front()->succeed = [onSuccess = std::move(onSuccess)](std::string& body) {
        onSuccess(body);
    };
    call.front()->fail = std::move(onFailure);
    call.front()->asynchronous = true;
    {
        std::unique_lock lock(writeMutex_);
        // A handler that calls again is the writer itself, and would wait forever.
        if (std::this_thread::get_id() != streamThread_) {
            writeCondition_.wait(lock,
                                 [this] { return terminated_ || writeCount_ < unwrittenLimit; });
        }
        ++writeCount_;
    }
    if (!submit(call)) {
        // The thread that would report it has ended.
        call.front()->fail(errorText());
    }
    trace_.step("CSingleStreamDispatcherConnection::asyncSendRequest LEAVE");
}

void CSingleStreamDispatcherConnection::WaitForStop() {
    // A broken trace file fails the caller, but only after the thread has ended.
    std::exception_ptr traceFailure;
    try {
        trace_.step("CSingleStreamDispatcherConnection::WaitForStop ENTER");
    } catch (const std::exception&) {
        traceFailure = std::current_exception();
    }
    io_.stop();
    if (thread_.joinable())
        thread_.join();
    open_ = false;
    if (connection_)
        connection_->close();
    connection_.reset();
    if (traceFailure)
        std::rethrow_exception(traceFailure);
    trace_.step("CSingleStreamDispatcherConnection::WaitForStop LEAVE");
}

/// For a caller that has stopped waiting. The connection ends on its own thread.
void CSingleStreamDispatcherConnection::giveUp(const std::string& text) {
    givenUp_ = true;
    asio::post(io_, [this, text] { terminate(text); });
}

/// A single call, already in a list, so that handing it over doesn't allocate.
CSingleStreamDispatcherConnection::Calls
CSingleStreamDispatcherConnection::newCall(const std::string& url, const std::string& request) {
    Calls call;
    call.push_back(std::make_unique<Call>());
    call.front()->url = url;
    call.front()->request = base::Secret(request);
    return call;
}

/// Passes the call, already counted as unwritten, to the connection's thread. Returns false, and
/// leaves the call untouched, if the stream is dead. Calls made before the stream is up wait for
/// it.
bool CSingleStreamDispatcherConnection::submit(Calls& call) {
    const std::lock_guard lock(stateMutex_);
    if (terminated_)
        return false;
    if (streaming_ && submitted_.empty()) {
        try {
            asio::post(io_, [this] { guarded([this] { enqueueSubmitted(); }); });
        } catch (const std::exception&) {
            forgetUnwritten();
            throw;
        }
    }
    submitted_.splice(submitted_.end(), call);
    return true;
}

/// Counts one unwritten call less, which may make room for an asynchronous caller.
void CSingleStreamDispatcherConnection::forgetUnwritten() {
    const std::lock_guard lock(writeMutex_);
    --writeCount_;
    writeCondition_.notify_all();
}

std::string CSingleStreamDispatcherConnection::errorText() {
    const std::lock_guard lock(stateMutex_);
    return errorText_.what();
}

void CSingleStreamDispatcherConnection::run() {
    streamThread_ = std::this_thread::get_id();
    guarded([this] { IOProcessingThread(); });
}

void CSingleStreamDispatcherConnection::IOProcessingThread() {
    trace_.step("CSingleStreamDispatcherConnection::IOProcessingThread ENTER");
    const auto stayUntilStopped = asio::make_work_guard(io_);
    if (connect()) {
        startStreaming();
        io_.run();
    } else if (terminated_) {
        return;
    }
    terminate("Stream connection terminated");
    trace_.step("CSingleStreamDispatcherConnection::IOProcessingThread LEAVE");
}

/// Returns false if the connection didn't come up or was stopped before.
bool CSingleStreamDispatcherConnection::connect() {
    if (!createConnection())
        return false;
    trace_.detail("connecting: ", key_.host, " port: ", key_.port);

    TcpConnection::Endpoints endpoints;
    std::optional<ErrorCode> result = await([&](auto done) {
        connection_->asyncResolve(key_.host, key_.port, shared_from_this(),
                                  [&endpoints, done](const ErrorCode& error, const auto& found) {
                                      endpoints = found;
                                      done(error);
                                  });
    });
    if (result && !*result)
        result = await([&](auto done) { connection_->asyncConnect(endpoints, done); });
    if (result && *result) {
        trace_.detail("connect: ", result->value(), " msg: ", result->message());
        terminate(connectFailure(key_.host, key_.port, *result));
        return false;
    }

    if (result && key_.useTls) {
        result = await([&](auto done) { connection_->asyncHandshake(done); });
        if (result && *result) {
            trace_.detail("SSL Handshake: ", result->value(), " msg: ", result->message());
            terminate(handshakeFailure(*result));
            return false;
        }
    }
    return result.has_value();
}

bool CSingleStreamDispatcherConnection::createConnection() {
    ErrorCode error = make_error_code(boost::system::errc::not_enough_memory);
    try {
        asio::ssl::context context = makeTlsContext();
        trace_.detail("boost::asio::ssl::context created");
        connection_ = std::make_shared<TcpConnection>(
            io_, context, key_.useTls, [this] { terminate("Stream connection closed"); });
        return true;
    } catch (const boost::system::system_error& failure) {
        error = failure.code();
        trace_.detail("pion::tcp::connection::create EXCEPTION: ", failure.what());
    } catch (const std::bad_alloc& failure) {
        trace_.detail("pion::tcp::connection::create EXCEPTION: ", failure.what());
    }
    terminate(connectFailure(key_.host, key_.port, error));
    return false;
}

/// Runs one operation to completion as if it blocked. Returns no value if the connection is stopped
/// meanwhile.
std::optional<ErrorCode> CSingleStreamDispatcherConnection::await(
    const std::function<void(TcpConnection::Completion)>& start) {
    std::optional<ErrorCode> result;
    start([&result, used = connection_](const ErrorCode& error) { result = error; });
    while (!result && io_.run_one() > 0) {
    }
    return result;
}

void CSingleStreamDispatcherConnection::startStreaming() {
    trace_.detail("issue async_read");
    readResponseHeader();
    {
        const std::lock_guard lock(stateMutex_);
        streaming_ = true;
    }
    asio::post(io_, [this] { guarded([this] { enqueueSubmitted(); }); });
}

void CSingleStreamDispatcherConnection::terminate(std::string_view cause) {
    std::map<std::uint32_t, CallPtr> waiting;
    Calls submitted;
    std::string text;
    {
        const std::lock_guard lock(stateMutex_);
        if (terminated_)
            return;
        try {
            text = cause;
            errorText_ << text;
        } catch (const std::bad_alloc&) {
            text = outOfMemory;
            errorText_ = invoke_exception(text);
        }
        terminated_ = true;
        waiting.swap(waiting_);
        submitted.swap(submitted_);
        const std::lock_guard writeLock(writeMutex_);
        writeCondition_.notify_all();
    }

    // A stream that was up keeps its socket, which marks it as not replaceable. So does one that
    // was given up before that: later calls for it must not start another wait.
    if (streaming_) {
        connection_->shutDown();
    } else {
        open_ = givenUp_.load();
        if (connection_)
            connection_->close();
    }
    io_.stop();

    const auto fail = [&text](const CallPtr& call) {
        try {
            call->fail(text);
        } catch (...) {
            // The others must be notified too.
        }
    };
    for (const auto& [id, call] : waiting)
        fail(call);
    std::ranges::for_each(submitted, fail);
}

} // namespace hessiancln
