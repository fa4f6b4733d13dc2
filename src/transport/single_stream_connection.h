// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include <boost/asio/io_context.hpp>
#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>

#include "base/secret.h"
#include "transport/call_failure.h"
#include "transport/connection_key.h"
#include "transport/frame.h"
#include "transport/i_call_dispatcher.h"
#include "transport/invoke_exception.h"
#include "transport/pending_reply.h"
#include "transport/tcp_connection.h"
#include "transport/tracer.h"

namespace hessiancln {

/// One stream of frames to an agent, with its own thread for reading and writing.
///
/// It connects on that thread, carries calls until the stream dies, and stays dead: from then on
/// every call immediately throws the text of the failure. At any time, each call is in one of two
/// places: in `submitted_` until the thread takes it, then in `waiting_`. Ending the stream fails
/// the calls in both, so that no caller is left waiting.
class CSingleStreamDispatcherConnection
    : public boost::enable_shared_from_this<CSingleStreamDispatcherConnection> {
public:
    using Handler = ICallDispatcher::Handler;

    /// A new connection whose thread is already running. The thread holds a reference, so a
    /// connection that is never stopped lives until its stream dies. Throws `invoke_exception` if
    /// the system can't provide a thread.
    static boost::shared_ptr<CSingleStreamDispatcherConnection>
    start(const ConnectionKey& key, std::uint32_t traceLevel, const std::string& traceFile,
          std::uint32_t lastRequestId = 0);

    CSingleStreamDispatcherConnection(const ConnectionKey& key, std::uint32_t traceLevel,
                                      const std::string& traceFile, std::uint32_t lastRequestId);
    CSingleStreamDispatcherConnection(const CSingleStreamDispatcherConnection&) = delete;
    CSingleStreamDispatcherConnection& operator=(const CSingleStreamDispatcherConnection&) = delete;
    virtual ~CSingleStreamDispatcherConnection();

    /// Blocks without a time limit until the reply is in `response`. Throws `invoke_exception` if
    /// the stream dies before that, and in a handler of this connection.
    void SendRequest(const std::string& url, const std::string& request, std::string& response);

    /// Queues the call; blocks while 16 frames are unwritten. The handlers run on this connection's
    /// thread, or on the caller's if the stream is already dead.
    void asyncSendRequest(const std::string& url, const std::string& request, Handler onSuccess,
                          Handler onFailure);

    /// Ends the stream, in whatever state it is, and its thread. Not for handlers.
    void WaitForStop();

    /// False once the socket is closed: the connection never came up, or has ended. A connection
    /// given up by its caller counts as open because it must not be replaced.
    bool isOpen() const { return open_; }

    /// True once the stream is dead: no more calls get through.
    bool hasDied() const { return terminated_; }

private:
    struct Call {
        std::string url;
        base::Secret request;
        std::function<void(std::string&)> succeed; ///< may move the reply out of its argument
        Handler fail;
        bool asynchronous = false;
    };
    using CallPtr = std::unique_ptr<Call>;
    using Calls = std::list<CallPtr>;

    // Thread-safe
    void giveUp(const std::string& text);
    void send(const std::string& url, const std::string& request,
              const std::shared_ptr<PendingReply>& reply);
    static Calls newCall(const std::string& url, const std::string& request);
    bool submit(Calls& call);
    void forgetUnwritten();
    std::string errorText();

    // The connection's own thread
    void run();
    void IOProcessingThread();
    bool connect();
    bool createConnection();
    std::optional<ErrorCode> await(const std::function<void(TcpConnection::Completion)>& start);
    void startStreaming();
    void enqueueSubmitted();
    CallPtr takeSubmitted();
    void enqueue(CallPtr& call);
    void enqueueAsyncSendRequest(CallPtr& call);
    base::Secret prepareRequest(const Call& call);
    void startWriting(bool writeCompleted);
    void readResponseHeader();
    void readResponseHeaderComplete(const ErrorCode& error);
    void readData();
    void readDataComplete(const ErrorCode& error, std::size_t pieceStart);
    void takeReply();
    void terminate(std::string_view cause);
    template <class Step>
    void guarded(Step step);

    const ConnectionKey key_;
    const Tracer trace_;

    std::thread thread_;
    std::atomic<std::thread::id> streamThread_;
    std::atomic<bool> open_ = true;
    std::atomic<bool> givenUp_ = false;

    std::mutex stateMutex_; ///< guards the next four members
    std::atomic<bool> terminated_ = false;
    invoke_exception errorText_;
    bool streaming_ = false;
    Calls submitted_;

    std::mutex writeMutex_; ///< guards the next two members; may be locked with the state mutex
                            ///< held
    std::condition_variable writeCondition_;
    std::size_t writeCount_ = 0; ///< calls not yet written, in the queue or on their way into it
    std::list<base::Secret> writeQueue_;

    // The members below are used only by the connection's own thread.
    std::uint32_t nextRequestId_;
    std::map<std::uint32_t, CallPtr> waiting_;
    ResponseHeader header_{};
    std::uint64_t responseLength_ = 0;
    std::uint32_t checksum_ = 0;
    std::string data_; ///< the part of the reply received so far, with its checksum

    // Some systems write to the buffers of an operation until it has ended, closed socket or not.
    // Each operation holds the connection, and the context, which waits for their ends, goes first.
    boost::asio::io_context io_{1};
    std::shared_ptr<TcpConnection> connection_;
};

/// Runs a step of the connection's thread. An exception ends the stream, not the program.
template <class Step>
void CSingleStreamDispatcherConnection::guarded(Step step) {
    try {
        step();
    } catch (const std::exception& failure) {
        terminate(callFailure(failure));
    } catch (...) {
        open_ = false;
        connection_->finish();
    }
}

} // namespace hessiancln
