// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace hessiancln {

/// A call that its thread waits for.
class AwaitedCall {
public:
    AwaitedCall() = default;
    AwaitedCall(const AwaitedCall&) = delete;
    AwaitedCall& operator=(const AwaitedCall&) = delete;

    virtual bool finished() const = 0;

    /// Runs `wake` on some thread once the call has finished, at once if it has. `wake` must not
    /// block. An empty one takes it back: when this returns, the earlier one won't run any more.
    virtual void onFinish(std::function<void()> wake) = 0;

    /// Ends the connection that carries the call, in whatever state it is. The call then fails with
    /// an `invoke_exception` of this text, and nothing is sent on that connection any more. Does
    /// nothing to a call that has finished.
    virtual void giveUp(const std::string& text) = 0;

protected:
    ~AwaitedCall() = default;
};

/// What a thread does while it waits for a call that takes long.
class WaitHook {
public:
    WaitHook() = default;
    WaitHook(const WaitHook&) = delete;
    WaitHook& operator=(const WaitHook&) = delete;
    virtual ~WaitHook() = default;

    /// How long a call may take before `wait` is run. Until then the thread sleeps.
    virtual std::chrono::milliseconds patience() const = 0;

    /// Runs on the waiting thread, and returns once the call has finished.
    virtual void wait(AwaitedCall& call) noexcept = 0;
};

/// Has all calls of this thread waited for with `hook` for as long as the object lives. Without
/// one a thread just sleeps until the reply comes. One at a time for each thread; `hook` has to
/// outlive this object.
class WaitHookInstallation {
public:
    explicit WaitHookInstallation(WaitHook& hook);
    WaitHookInstallation(const WaitHookInstallation&) = delete;
    WaitHookInstallation& operator=(const WaitHookInstallation&) = delete;
    ~WaitHookInstallation();
};

/// The one gate that each call of a thread goes through, whatever transport carries it. Lives for
/// the length of the call. A call inside a call is an error of this program, which fails an
/// assertion; where those are off it raises `invoke_exception`, and the outer call goes on.
class CallPassage {
public:
    CallPassage();
    CallPassage(const CallPassage&) = delete;
    CallPassage& operator=(const CallPassage&) = delete;
    ~CallPassage();

    /// Whether this thread is in a call, so that it must not begin another one.
    static bool underWay();

    /// The hook of this thread; null without one.
    static WaitHook* hook();
};

} // namespace hessiancln
