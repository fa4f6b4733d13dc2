// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/faults/injections.h"

#include <algorithm>

#include "hessian/writer.h"
#include "simulator/faults/reply_surgery.h"

namespace simulator {
namespace {

template <class... F>
struct Overloaded : F... {
    using F::operator()...;
};
template <class... F>
Overloaded(F...) -> Overloaded<F...>;

bool fits(const Injection& injection, wire::Channel channel) {
    if (std::holds_alternative<HttpError>(injection))
        return channel == wire::Channel::Http;
    if (std::holds_alternative<WrongChecksum>(injection) ||
        std::holds_alternative<WrongMagic>(injection) ||
        std::holds_alternative<Announcement>(injection))
        return channel == wire::Channel::Stream;
    return true;
}

} // namespace

void Injections::add(std::string method, Injection injection, Times times, std::size_t after) {
    waiting_.push_back({std::move(method), std::move(injection), times, after});
}

std::optional<Injection> Injections::take(std::string_view className, std::string_view method,
                                          wire::Channel channel) {
    const std::string full = std::string(className) + "." + std::string(method);
    const auto found = std::find_if(waiting_.begin(), waiting_.end(), [&](Waiting& one) {
        const bool named = one.method == method || one.method == full || one.method == "*";
        if (!named || !fits(one.injection, channel))
            return false;
        if (one.after == 0)
            return true;
        --one.after;
        return false;
    });
    if (found == waiting_.end())
        return std::nullopt;
    Injection injection = found->injection;
    if (found->times == Times::Once)
        waiting_.erase(found);
    return injection;
}

std::optional<wire::Answer> answerInstead(const Injection& injection) {
    return std::visit(Overloaded{[](const Fault& fault) {
                                     wire::Answer answer;
                                     answer.message = faultReply(fault);
                                     return std::optional(answer);
                                 },
                                 [](const Silence&) {
                                     wire::Answer answer;
                                     answer.silent = true;
                                     return std::optional(answer);
                                 },
                                 [](const HttpError& error) {
                                     wire::Answer answer;
                                     answer.status = wire::HttpStatus{error.code, error.reason};
                                     return std::optional(answer);
                                 },
                                 [](const RawReply& reply) {
                                     wire::Answer answer;
                                     answer.message = reply.bytes;
                                     return std::optional(answer);
                                 },
                                 [](const auto&) { return std::optional<wire::Answer>(); }},
                      injection);
}

void spoil(wire::Answer& answer, const Injection& injection) {
    const auto operate = [&answer](auto change) { answer.message = change(answer.message); };
    std::visit(Overloaded{[&](const Delay& delay) { answer.delay = delay.time; },
                          [&](const Drip& drip) { answer.drip = drip.interval; },
                          [&](const Announcement& reply) { answer.announced = reply.bytes; },
                          [&](const CutBefore&) { answer.cutAt = 0; },
                          [&](const CutWithin& cut) { answer.cutAt = cut.bytes; },
                          [&](const CutAfter&) { answer.cutBehind = true; },
                          [&](const WrongChecksum&) { answer.wrongChecksum = true; },
                          [&](const WrongMagic&) { answer.wrongMagic = true; },
                          [&](const UnknownKey& unknown) {
                              operate([&](const std::string& reply) {
                                  return withKey(reply, unknown.key);
                              });
                          },
                          [&](const UnknownEnumValue& unknown) {
                              operate([&](const std::string& reply) {
                                  return withNumber(reply, unknown.key, unknown.number);
                              });
                          },
                          [&](const NullResult&) { operate(withNull); },
                          [&](const ReversedKeys&) { operate(withReversedKeys); },
                          [&](const ListsWithTypeAndLength&) { operate(withTypedLists); },
                          [](const auto&) {}},
               injection);
}

bool losesReferences(const Injection& injection) {
    return !std::holds_alternative<Delay>(injection) && !std::holds_alternative<Drip>(injection) &&
           !std::holds_alternative<CutAfter>(injection) &&
           !std::holds_alternative<ReversedKeys>(injection) &&
           !std::holds_alternative<ListsWithTypeAndLength>(injection) &&
           !std::holds_alternative<UnknownEnumValue>(injection);
}

std::string faultReply(const Fault& fault) {
    std::string reply = fault.replyHead ? std::string("r\x01\0", 3) : std::string();
    reply += 'f';
    hessianser::writeString("code", reply);
    hessianser::writeString(fault.code, reply);
    hessianser::writeString("message", reply);
    hessianser::writeString(fault.message, reply);
    hessianser::writeEnd(reply);
    return reply;
}

} // namespace simulator
