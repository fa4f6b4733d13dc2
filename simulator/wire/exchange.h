// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "simulator/wire/http_rules.h"

namespace simulator::wire {

enum class Channel { Http, Stream };

/// A call message and the URL of its target object.
struct CallMessage {
    Channel channel;
    std::string url;
    std::string_view bytes;
};

/// The answer to a call, and how it is sent.
struct Answer {
    std::string message;
    std::chrono::milliseconds delay{0};
    /// Interval between two bytes; 0 sends all at once.
    std::chrono::milliseconds drip{0};
    /// Size in the head of a frame; nothing else of it is sent.
    std::optional<std::uint64_t> announced;
    bool silent = false;
    /// Replaces the body, over HTTP.
    std::optional<HttpStatus> status;
    bool wrongMagic = false;
    bool wrongChecksum = false;
    /// The connection is closed after this many bytes of the frame or of the response.
    std::optional<std::size_t> cutAt;
    bool cutBehind = false;
};

/// The code behind the wire. Called on the I/O thread only.
class Exchange {
public:
    virtual ~Exchange() = default;

    virtual Answer answer(const CallMessage& call) = 0;

    /// Whether an object with this URL exists or existed.
    virtual bool knowsObject(const std::string& url) = 0;

    /// Reports bytes that were rejected before they became a call.
    virtual void reportViolation(const std::string& text) = 0;
};

} // namespace simulator::wire
