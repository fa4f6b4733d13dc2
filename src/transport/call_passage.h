// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace hessiancln {

/// Who lets a thread wait.
enum class Awaited { agent, logonService };

/// A call that a thread is waiting for.
class AwaitedCall {
public:
    AwaitedCall() = default;
    AwaitedCall(const AwaitedCall&) = delete;
    AwaitedCall& operator=(const AwaitedCall&) = delete;

    virtual Awaited awaited() const = 0;

    virtual bool finished() const = 0;

    /// Sleeps until the call has finished, but not longer than this. Returns whether it has.
    virtual bool waitFor(std::chrono::milliseconds time) = 0;

    /// Runs `wake` on any thread once the call has finished, or immediately if it already has.
    /// `wake` must not block, and isn't repeated if it throws `std::bad_alloc`: a hook therefore
    /// also asks `finished` from time to time. An empty `wake` unregisters: after this returns, the
    /// previous one won't run.
    virtual void onFinish(std::function<void()> wake) = 0;

    /// Ends the connection that carries the call, in whatever state it is. The call then fails with
    /// an `invoke_exception` of this text, and nothing more is sent on that connection. A call of
    /// the local system is abandoned. Does nothing to a finished call, and returns false.
    virtual bool giveUp(const std::string& text) = 0;

protected:
    ~AwaitedCall() = default;
};

/// What a thread does while it waits for a slow call.
class WaitHook {
public:
    WaitHook() = default;
    WaitHook(const WaitHook&) = delete;
    WaitHook& operator=(const WaitHook&) = delete;
    virtual ~WaitHook() = default;

    /// Runs at the beginning of each call, before anything of it is sent. A call that it gives up
    /// is never sent. Returns how long the call may take before `wait` runs; until then the thread
    /// sleeps.
    virtual std::chrono::milliseconds begin(AwaitedCall& call) = 0;

    /// Runs on the waiting thread, and returns once the call has finished.
    virtual void wait(AwaitedCall& call) noexcept = 0;
};

/// Makes all calls of this thread wait with `hook` for the lifetime of this object. Without a hook
/// a thread just sleeps until the reply arrives. At most one per thread; `hook` must outlive this
/// object.
class WaitHookInstallation {
public:
    explicit WaitHookInstallation(WaitHook& hook);
    WaitHookInstallation(const WaitHookInstallation&) = delete;
    WaitHookInstallation& operator=(const WaitHookInstallation&) = delete;
    ~WaitHookInstallation();
};

/// The single gate for every call of a thread, on any transport. Lives as long as the call. A
/// nested call is a programming error and fails an assertion; with assertions disabled it throws
/// `invoke_exception`, and the outer call continues.
class CallPassage {
public:
    CallPassage();
    CallPassage(const CallPassage&) = delete;
    CallPassage& operator=(const CallPassage&) = delete;
    ~CallPassage();

    /// Whether this thread is in a call and so must not begin another one.
    static bool underWay();
    /// Fails as a nested call would, if one is under way.
    static void refuseInside();

    /// The hook of this thread, or null.
    static WaitHook* hook();
};

} // namespace hessiancln
