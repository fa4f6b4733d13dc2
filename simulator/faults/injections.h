// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "simulator/wire/exchange.h"

/// What tests can do to calls of a method, as arguments of `Simulator::inject`.
namespace simulator {

/// The call isn't run; the caller gets a fault, with or without a reply head.
struct Fault {
    std::string message;
    std::string code = "SimulatedFault";
    bool replyHead = true;
};

/// The call isn't run and never answered. The connection stays open.
struct Silence {};

/// The call isn't run; the HTTP response has this status. Applies to a call over HTTP.
struct HttpError {
    unsigned code;
    std::string reason;
};

/// The call isn't run; these bytes are the whole reply message.
struct RawReply {
    std::string bytes;
};

/// The reply is delayed by this time. Other replies may overtake it.
struct Delay {
    std::chrono::milliseconds time;
};

/// The reply arrives byte by byte, with this interval.
struct Drip {
    std::chrono::milliseconds interval;
};

/// The head of a frame announces a reply of this many bytes, and nothing follows. Applies to a call
/// over the stream.
struct Announcement {
    std::uint64_t bytes;
};

/// The connection is closed in place of the reply.
struct CutBefore {};

/// The connection is closed after this many bytes of the frame or the HTTP response.
struct CutWithin {
    std::size_t bytes;
};

/// The connection is closed after the whole reply.
struct CutAfter {};

/// Wrong checksum of a frame. Applies to a call over the stream.
struct WrongChecksum {};

/// Wrong magic number of a frame. Applies to a call over the stream.
struct WrongMagic {};

/// Each record in the reply, including nested ones, ends with an unknown member.
struct UnknownKey {
    std::string key = "surprise";
};

/// Sets the int32 under this key in each record, or the result itself without a key.
struct UnknownEnumValue {
    std::string key;
    std::int32_t number = 1000;
};

/// The result is null.
struct NullResult {};

/// The members of each record are in reverse order.
struct ReversedKeys {};

/// Each list includes its type and its length.
struct ListsWithTypeAndLength {};

using Injection =
    std::variant<Fault, Silence, HttpError, RawReply, Delay, Drip, Announcement, CutBefore,
                 CutWithin, CutAfter, WrongChecksum, WrongMagic, UnknownKey, UnknownEnumValue,
                 NullResult, ReversedKeys, ListsWithTypeAndLength>;

enum class Times { Once, UntilCleared };

/// The pending injections.
class Injections {
public:
    /// `method` is "getName", "BackupSet.getName", or "*" for any. The first `after` matching calls
    /// are skipped.
    void add(std::string method, Injection injection, Times times, std::size_t after = 0);
    void clear() { waiting_.clear(); }

    /// Number of injections that haven't met their call yet, or apply until cleared.
    std::size_t waiting() const { return waiting_.size(); }

    /// The injection for a call; the oldest if several match.
    std::optional<Injection> take(std::string_view className, std::string_view method,
                                  wire::Channel channel);

private:
    struct Waiting {
        std::string method;
        Injection injection;
        Times times;
        std::size_t after;
    };
    std::vector<Waiting> waiting_;
};

/// The answer if the injection replaces the call.
std::optional<wire::Answer> answerInstead(const Injection& injection);

/// Applies the injection to the answer of a call that was run.
void spoil(wire::Answer& answer, const Injection& injection);

/// Whether references in the answer may fail to arrive.
bool losesReferences(const Injection& injection);

/// "f", code, message, "z", after a reply head if `replyHead`.
std::string faultReply(const Fault& fault);

} // namespace simulator
