// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <boost/function.hpp>

namespace hessiancln {

/// The seam between the remote objects and the bytes on a connection: takes the URL of a remote
/// object and one finished call message, gives back the reply message. It looks into neither.
///
/// The base class adds a small pool of worker threads which turns the blocking `sendRequest` into
/// an asynchronous one. The threads exist from the first asynchronous call on.
class ICallDispatcher {
public:
    /// Takes the reply after a success, a message after a failure.
    using Handler = boost::function<void(const std::string&)>;

    /// `traceLevel`: 0 writes nothing, 1 ENTER and LEAVE lines, 2 also details. `traceFile`: path
    /// of the trace file, may be empty.
    ICallDispatcher(std::uint32_t traceLevel, std::string traceFile);
    ICallDispatcher(const ICallDispatcher&) = delete;
    ICallDispatcher& operator=(const ICallDispatcher&) = delete;

    /// Waits for the calls that workers have taken, then fails the queued ones. A class that
    /// leaves `asyncSendRequest` to the workers calls `stopWorkers` in its own destructor, since
    /// none of them may find it half destroyed.
    virtual ~ICallDispatcher();

    /// Sends `request` to the object at `url` and blocks until the whole reply is there. May be
    /// called from several threads at once. Raises `invoke_exception` on any failure of the
    /// transport and `trace_exception` when a trace is on and can't be written.
    virtual std::string sendRequest(const std::string& url, const std::string& request) = 0;

    /// Queues the call and returns. One of the two handlers runs, once, on another thread; only a
    /// call to a dispatcher or connection that has ended already fails on the calling thread.
    /// Blocks while 16 calls are queued. Raises `invoke_exception`, and calls neither handler, when
    /// the system has no memory or no thread for the call. An exception out of `onSuccess` ends in
    /// `onFailure` of the same call; `onFailure` must not raise.
    virtual void asyncSendRequest(const std::string& url, const std::string& request,
                                  Handler onSuccess, Handler onFailure);

    /// Closes the long-lived connections that the transport keeps, if it keeps any.
    virtual void stopConnections();

protected:
    std::uint32_t traceLevel() const { return traceLevel_; }
    const std::string& traceFile() const { return traceFile_; }

    /// Ends the workers, once each has finished the call that it has taken, and fails the calls
    /// that are left. There is no way back. Does nothing the second time.
    void stopWorkers();

private:
    struct WorkerPool;

    std::uint32_t traceLevel_;
    std::string traceFile_;
    std::unique_ptr<WorkerPool> pool_;
};

} // namespace hessiancln
