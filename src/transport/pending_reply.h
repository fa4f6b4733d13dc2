// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <string>

#include "transport/call_passage.h"

namespace hessiancln {

/// Where the caller of a call sleeps while another thread carries it. Both hold a share in it,
/// since either may leave first.
class PendingReply final : public AwaitedCall {
public:
    /// Ends the connection without waiting for its end. Runs on the thread of the caller.
    using GiveUp = std::function<void(const std::string& text)>;

    explicit PendingReply(GiveUp giveUp);
    /// Wipes a reply that nobody has taken.
    ~PendingReply();

    /// Any thread. The first of these counts; the others do nothing, and `fail` is then false. The
    /// reply is taken out of its argument.
    void succeed(std::string& reply);
    bool fail(const std::string& text);
    bool fail(std::exception_ptr failure);

    /// Sleeps, or does what the hook of this thread does, until the call has finished. Gives the
    /// reply or raises the failure, which is an `invoke_exception` if it was given as a text.
    std::string wait();

    bool finished() const override;
    void onFinish(std::function<void()> wake) override;
    void giveUp(const std::string& text) override;

private:
    template <class Result>
    bool finish(Result setResult);

    const GiveUp giveUp_;
    mutable std::mutex mutex_; ///< guards all that follows
    std::condition_variable condition_;
    bool finished_ = false;
    std::exception_ptr failure_;
    std::optional<std::string> failureText_;
    std::string reply_;
    std::function<void()> wake_;
};

} // namespace hessiancln
