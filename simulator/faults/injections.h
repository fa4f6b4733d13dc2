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

/// What a test can do to a call of a method. `Simulator::inject` takes each of them.
namespace simulator {

/// The call isn't run; the caller gets a fault, with or without the head of a reply before it.
struct Fault {
    std::string message;
    std::string code = "SimulatedFault";
    bool replyHead = true;
};

/// The call isn't run, and nothing ever comes back. The connection stays open.
struct Silence {};

/// The call isn't run; over HTTP comes this status. Waits for a call over HTTP.
struct HttpError {
    unsigned code;
    std::string reason;
};

/// The call isn't run; the whole reply message is these bytes.
struct RawReply {
    std::string bytes;
};

/// The reply comes so much later. Others may overtake it.
struct Delay {
    std::chrono::milliseconds time;
};

/// The reply comes byte by byte, with so much time between them.
struct Drip {
    std::chrono::milliseconds interval;
};

/// The head of a frame announces a reply of so many bytes, and nothing comes behind it. Waits for a
/// call over the stream.
struct Announcement {
    std::uint64_t bytes;
};

/// The connection is closed in place of the reply.
struct CutBefore {};

/// The connection is closed behind so many bytes of the frame or the HTTP response.
struct CutWithin {
    std::size_t bytes;
};

/// The connection is closed behind the whole reply.
struct CutAfter {};

/// Of a frame. Waits for a call over the stream.
struct WrongChecksum {};

/// Of a frame. Waits for a call over the stream.
struct WrongMagic {};

/// Each record in the reply, nested ones as well, ends with a member that nobody knows.
struct UnknownKey {
    std::string key = "surprise";
};

/// The int32 under this key in each record, or without a key the result itself, has this number.
struct UnknownEnumValue {
    std::string key;
    std::int32_t number = 1000;
};

/// The result is a null.
struct NullResult {};

/// The members of each record come in reverse order.
struct ReversedKeys {};

/// Each list tells its type and its length.
struct ListsWithTypeAndLength {};

using Injection =
    std::variant<Fault, Silence, HttpError, RawReply, Delay, Drip, Announcement, CutBefore,
                 CutWithin, CutAfter, WrongChecksum, WrongMagic, UnknownKey, UnknownEnumValue,
                 NullResult, ReversedKeys, ListsWithTypeAndLength>;

enum class Times { Once, UntilCleared };

/// The injections that wait for their calls.
class Injections {
public:
    /// `method` is "getName", "BackupSet.getName", or "*" for any. The first calls that fit pass:
    /// so many as `after` says.
    void add(std::string method, Injection injection, Times times, std::size_t after = 0);
    void clear() { waiting_.clear(); }

    /// How many have not met their call yet, or apply until cleared.
    std::size_t waiting() const { return waiting_.size(); }

    /// The injection for a call, the oldest one first.
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

/// The answer in place of running the call, if the injection asks for that.
std::optional<wire::Answer> answerInstead(const Injection& injection);

/// Does to the answer of a call that was run what the injection asks for.
void spoil(wire::Answer& answer, const Injection& injection);

/// Whether what the answer hands out may fail to arrive.
bool losesReferences(const Injection& injection);

/// "f", code, message, "z", behind the head of a reply if `replyHead`.
std::string faultReply(const Fault& fault);

} // namespace simulator
