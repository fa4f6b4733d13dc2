// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "transport/i_call_dispatcher.h"

namespace support {

/// An agent that knows the calls in advance: it expects them in order, each to one URL with exactly
/// these bytes, and returns the reply given with them. Any other call fails the test, and so does
/// an unused line of the script. It also checks that each request was built in a buffer of exactly
/// its size.
///
/// Messages use the notation of `bytes`. For one thread.
class ScriptedDispatcher : public hessiancln::ICallDispatcher {
public:
    ScriptedDispatcher();
    ~ScriptedDispatcher() override;

    void expect(std::string_view url, std::string_view request, std::string_view reply);

    /// Answers the call by running `raise`, which throws.
    void expectThenRaise(std::string_view url, std::string_view request,
                         std::function<void()> raise);

    void expectRelease(std::string_view url);

    /// The number of calls still to come.
    std::size_t left() const { return script_.size(); }

    std::string sendRequest(const std::string& url, const std::string& request) override;

private:
    struct Line {
        std::string url;
        std::string request;
        std::string reply;
        std::function<void()> raise;
    };

    std::deque<Line> script_;
};

} // namespace support
