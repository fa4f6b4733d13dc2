// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <boost/function.hpp>

namespace hessiancln {

/// The interface between remote objects and bytes on a connection: takes the URL of a remote object
/// and a complete call message, returns the reply message. It inspects neither.
///
/// The base class adds a small pool of worker threads that turns the blocking `sendRequest` into an
/// asynchronous one. The threads start with the first asynchronous call.
class ICallDispatcher {
public:
    /// Receives the reply on success, an error message on failure.
    using Handler = boost::function<void(const std::string&)>;

    /// `traceLevel`: 0 writes nothing, 1 ENTER and LEAVE lines, 2 also details. `traceFile`: path
    /// of the trace file; may be empty.
    ICallDispatcher(std::uint32_t traceLevel, std::string traceFile);
    ICallDispatcher(const ICallDispatcher&) = delete;
    ICallDispatcher& operator=(const ICallDispatcher&) = delete;

    /// Waits for the calls that workers have taken, then fails the queued ones. A class that leaves
    /// `asyncSendRequest` to the workers must call `stopWorkers` in its own destructor, so that no
    /// worker uses a half-destroyed object.
    virtual ~ICallDispatcher();

    /// Sends `request` to the object at `url` and blocks until the reply is complete. Thread-safe.
    /// Throws `invoke_exception` on any transport failure, and `trace_exception` if a trace is on
    /// and can't be written.
    virtual std::string sendRequest(const std::string& url, const std::string& request) = 0;

    /// Queues the call and returns. One of the two handlers runs, once, on another thread; only
    /// a call to a dispatcher or connection that has already ended fails on the calling
    /// thread. Blocks while 16 calls are queued. Throws `invoke_exception`, without calling a
    /// handler, if the system has no memory or no thread for the call. An exception from
    /// `onSuccess` is reported to `onFailure` of the same call; `onFailure` must not throw.
    virtual void asyncSendRequest(const std::string& url, const std::string& request,
                                  Handler onSuccess, Handler onFailure);

    /// Closes the transport's long-lived connections, if any.
    virtual void stopConnections();

protected:
    std::uint32_t traceLevel() const { return traceLevel_; }
    const std::string& traceFile() const { return traceFile_; }

    /// Stops the workers after their current calls, and fails the remaining calls. Irreversible.
    /// Does nothing the second time.
    void stopWorkers();

private:
    struct WorkerPool;

    std::uint32_t traceLevel_;
    std::string traceFile_;
    std::unique_ptr<WorkerPool> pool_;
};

} // namespace hessiancln
