// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <condition_variable>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "transport/call_passage.h"

namespace hessiancln {

/// Where a caller sleeps while another thread carries its call. Both share ownership, since either
/// may finish first.
class PendingReply final : public AwaitedCall {
public:
    /// Ends the connection without waiting for it to close. Runs on the caller's thread.
    using GiveUp = std::function<void(const std::string& text)>;

    /// Begins the call. If this thread's hook gives it up, it has finished already and must not be
    /// sent.
    explicit PendingReply(GiveUp giveUp, Awaited awaited = Awaited::agent);
    /// Wipes a reply that wasn't taken.
    ~PendingReply();

    /// Thread-safe. Only the first of these calls counts; for later ones `fail` returns false. The
    /// reply is moved out of its argument.
    void succeed(std::string& reply);
    bool fail(const std::string& text);
    bool fail(std::exception_ptr failure);

    /// The time left until `wait` runs the hook; 0 without a hook.
    std::chrono::milliseconds patience() const;

    /// Sleeps, or runs this thread's hook, until the call has finished. Returns the reply or throws
    /// the failure; a failure given as text is thrown as `invoke_exception`.
    std::string wait();

    Awaited awaited() const override { return awaited_; }
    bool finished() const override;
    void onFinish(std::function<void()> wake) override;
    bool waitFor(std::chrono::milliseconds time) override;
    bool giveUp(const std::string& text) override;

private:
    template <class Result>
    bool finish(Result setResult);
    void wake();

    const GiveUp giveUp_;
    const Awaited awaited_;
    std::chrono::steady_clock::time_point hookRuns_; ///< unless the call finishes before
    mutable std::mutex mutex_;                       ///< guards all members below
    std::condition_variable condition_;
    bool finished_ = false;
    std::exception_ptr failure_;
    std::optional<std::string> failureText_;
    std::string reply_;
    std::function<void()> wake_;
};

/// Runs `work`, which returns the reply or throws, on a thread of its own. That thread is abandoned
/// if the caller gives up, so `work` must own all that it needs. Throws `std::system_error` if no
/// thread can be started.
void answerBeside(const std::shared_ptr<PendingReply>& reply, std::function<std::string()> work);

/// Ends the process with `status`. While a thread from above still runs, the exit functions are
/// skipped: those of the libraries that it is using could abort or crash.
[[noreturn]] void exitProcess(int status);

} // namespace hessiancln
