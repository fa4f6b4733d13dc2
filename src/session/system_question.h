// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "transport/call_passage.h"
#include "transport/pending_reply.h"

namespace session {

/// Asks this system something for which it may have to wait for its logon or directory service. On
/// a thread with a `WaitHook`, `question` runs on a thread of its own, which is abandoned if the
/// user gives up: it must own all that it needs. Throws what the question throws, and the
/// `invoke_exception` of a user who gives up.
template <class Answer>
Answer askSystem(const std::function<Answer()>& question) {
    const hessiancln::CallPassage passage;
    if (!hessiancln::CallPassage::hook())
        return question();
    const auto reply = std::make_shared<hessiancln::PendingReply>(
        [](const std::string&) {}, hessiancln::Awaited::logonService);
    const auto answer = std::make_shared<Answer>();
    if (!reply->finished()) {
        try {
            answerBeside(reply, [question, answer] {
                *answer = question();
                return std::string();
            });
        } catch (const std::exception&) {
            // No thread or no memory for one, so the windows freeze for once.
            return question();
        }
    }
    reply->wait();
    return std::move(*answer);
}

} // namespace session
