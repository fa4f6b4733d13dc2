// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/simulator.h"

#include <algorithm>
#include <mutex>
#include <utility>

#include "simulator/agent.h"
#include "simulator/wire/listener.h"

namespace simulator {

/// Members are ordered so that the listener is destroyed before anything it uses.
struct Simulator::Parts {
    explicit Parts(Options options)
        : agent(std::move(options))
        , port(agent.options().port) {
        listen();
    }

    void listen() {
        listener = std::make_unique<wire::Listener>(port, !agent.options().plain, agent);
        port = listener->port();
    }

    Agent agent;
    std::uint16_t port;
    std::unique_ptr<wire::Listener> listener;
};

Simulator::Simulator(Options options)
    : parts_(std::make_unique<Parts>(std::move(options))) {}

Simulator::~Simulator() = default;

std::uint16_t Simulator::port() const {
    return parts_->port;
}

std::string Simulator::address() const {
    return "127.0.0.1:" + std::to_string(port());
}

std::string Simulator::baseUrl() const {
    return (parts_->agent.options().plain ? "http://" : "https://") + address();
}

void Simulator::stop() {
    parts_->listener.reset();
}

void Simulator::restart() {
    stop();
    parts_->listen();
}

void Simulator::cutConnections() {
    if (parts_->listener)
        parts_->listener->cutConnections();
}

std::vector<Call> Simulator::callLog() const {
    const std::lock_guard guard(parts_->agent.lock());
    return parts_->agent.calls();
}

std::vector<std::string> Simulator::callTexts() const {
    std::vector<std::string> texts;
    for (const Call& call : callLog())
        texts.push_back(call.text());
    return texts;
}

void Simulator::clearCallLog() {
    const std::lock_guard guard(parts_->agent.lock());
    parts_->agent.calls().clear();
}

bool Simulator::waitForCall(std::string_view method, std::size_t count,
                            std::chrono::milliseconds limit) const {
    Agent& agent = parts_->agent;
    std::unique_lock guard(agent.lock());
    return agent.called().wait_for(guard, limit, [&] {
        const auto& calls = agent.calls();
        const auto found = std::count_if(calls.begin(), calls.end(), [method](const Call& call) {
            return call.method == method || call.className + "." + call.method == method;
        });
        return static_cast<std::size_t>(found) >= count;
    });
}

std::vector<std::string> Simulator::violations() const {
    const std::lock_guard guard(parts_->agent.lock());
    return parts_->agent.violations();
}

std::vector<std::string> Simulator::liveObjects() const {
    const std::lock_guard guard(parts_->agent.lock());
    return parts_->agent.objects().held();
}

void Simulator::inject(std::string method, Injection injection, Times times, std::size_t after) {
    const std::lock_guard guard(parts_->agent.lock());
    parts_->agent.injections().add(std::move(method), std::move(injection), times, after);
}

void Simulator::clearInjections() {
    const std::lock_guard guard(parts_->agent.lock());
    parts_->agent.injections().clear();
}

std::size_t Simulator::waitingInjections() const {
    const std::lock_guard guard(parts_->agent.lock());
    return parts_->agent.injections().waiting();
}

void Simulator::withWorld(const std::function<void(World&)>& visit) {
    const std::lock_guard guard(parts_->agent.lock());
    parts_->agent.world().advance();
    visit(parts_->agent.world());
}

} // namespace simulator
