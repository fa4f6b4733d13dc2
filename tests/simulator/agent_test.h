// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "simulator/simulator.h"
#include "tests/simulator/raw_client.h"

/// A simulator and a raw client that has logged in.
class AgentTest : public ::testing::Test {
protected:
    static constexpr std::int64_t noon = 1'700'049'600'000; // 2023-11-15 12:00 UTC

    void start(simulator::Options options = {}) {
        options.clock = [this] { return now_.load(); };
        agent_ = std::make_unique<simulator::Simulator>(std::move(options));
    }

    /// Logs in as a guest, and opens the stream.
    void logIn() {
        root_ = raw::referenceIn(post(raw::call("login", loginArguments("", "", 0))));
        stream_ = std::make_unique<raw::Connection>(agent_->port(), tls());
    }

    std::string loginArguments(std::string_view user, std::string_view password,
                               std::int32_t flag) const {
        return raw::text(agent_->baseUrl()) + raw::text("13.0.0.0") + raw::text(user) +
               raw::text(password) + raw::int32(flag);
    }

    /// The arguments of a step of an integrated logon to the agent addressed as `base`.
    static std::string logonArguments(const std::string& token, const std::string& base) {
        std::string framed;
        for (int shift = 0; shift < 32; shift += 8)
            framed += static_cast<char>(token.size() >> shift & 0xFF);
        return logonArgumentsWith(framed + token, base);
    }
    std::string logonArguments(const std::string& token) const {
        return logonArguments(token, agent_->baseUrl());
    }

    /// The same with any bytes as the framed token.
    static std::string logonArgumentsWith(const std::string& framed, const std::string& base) {
        return raw::text(base) + raw::text("13.0.0.0") + "B" +
               static_cast<char>(framed.size() >> 8) + static_cast<char>(framed.size() & 0xFF) +
               framed;
    }
    std::string logonArgumentsWith(const std::string& framed) const {
        return logonArgumentsWith(framed, agent_->baseUrl());
    }

    std::string post(std::string_view message) {
        return raw::exchange(agent_->port(), tls(), raw::post(agent_->port(), "/api", message));
    }

    /// Calls the session's root, or another object, over the stream.
    std::string call(std::string_view method, std::string_view arguments = {}) {
        return callOn(root_, method, arguments);
    }
    std::string callOn(std::string_view url, std::string_view method,
                       std::string_view arguments = {}) {
        stream_->send(raw::requestFrame(++id_, url, raw::call(method, arguments)));
        return raw::receiveResponse(*stream_, id_);
    }

    /// The URL of the object returned by such a call.
    std::string get(std::string_view method, std::string_view arguments = {}) {
        return raw::referenceIn(call(method, arguments));
    }
    std::string getFrom(std::string_view url, std::string_view method,
                        std::string_view arguments = {}) {
        return raw::referenceIn(callOn(url, method, arguments));
    }

    /// An object as an argument, as in `as("Schedule", url)`.
    static std::string as(const std::string& family, std::string_view url) {
        return raw::remote("com.norvel.api." + family, url);
    }

    /// The text of a refusal, as opposed to a client's mistake.
    std::string refusalOf(const std::string& reply) {
        const std::string start = raw::reply().substr(0, 3) + "f" + raw::text("code") +
                                  raw::text("Refused") + raw::text("message") + "S";
        if (!reply.starts_with(start))
            return "no refusal";
        return reply.substr(start.size() + 2, reply.size() - start.size() - 3);
    }

    std::string setUrl(std::int32_t id) {
        return raw::referenceIn(call("backup_set", raw::int32(id)));
    }

    bool tls() const { return agent_->baseUrl().starts_with("https"); }

    void pass(std::int64_t milliseconds) { now_ += milliseconds; }

    std::atomic<std::int64_t> now_{noon};
    std::unique_ptr<simulator::Simulator> agent_;
    std::unique_ptr<raw::Connection> stream_;
    std::string root_;
    std::uint32_t id_ = 0;
};
