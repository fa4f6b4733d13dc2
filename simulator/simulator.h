// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/faults/injections.h"
#include "simulator/objects/journal.h"
#include "simulator/options.h"

namespace simulator {

class World;

/// An agent on a port of 127.0.0.1: strict with its clients, and full of life.
///
///     simulator::Simulator agent({.scenario = simulator::Scenario::Central});
///     agent.inject("backup_sets_info", simulator::Fault{"The database is locked."});
///     connectToAgent(agent.address(), "demo", "demo", 1);
///     EXPECT_THAT(agent.violations(), IsEmpty());
///
/// It listens as soon as it is made. Every method may be called from any thread.
class Simulator {
public:
    /// Raises `std::system_error` if the port can't be had, `std::runtime_error` if the log file
    /// can't be written, or the keys to accept logons with can't be had.
    explicit Simulator(Options options = {});

    /// Stops, whatever clients are doing.
    ~Simulator();

    Simulator(const Simulator&) = delete;
    Simulator& operator=(const Simulator&) = delete;

    std::uint16_t port() const;
    std::string address() const; ///< "127.0.0.1:4411"
    std::string baseUrl() const; ///< "https://127.0.0.1:4411"

    /// Closes the port and every connection. The world and the logs stay.
    void stop();
    /// Listens again, on the same port.
    void restart();
    /// Cuts every connection that is open now; new ones are welcome.
    void cutConnections();

    /// Every call that reached an object, in order. A call that was refused is in it as well.
    std::vector<Call> callLog() const;
    /// The same as texts, as `BackupSet.setName("Documents")`.
    std::vector<std::string> callTexts() const;
    void clearCallLog();

    /// Waits until `method` ("setName" or "BackupSet.setName") stands at least `count` times in
    /// the call log. False if that takes longer than `limit`.
    bool waitForCall(std::string_view method, std::size_t count = 1,
                     std::chrono::milliseconds limit = std::chrono::seconds(10)) const;

    /// What clients did that no right client does, in order.
    std::vector<std::string> violations() const;

    /// The references that clients hold now, the session's root among them. At the end of a test
    /// there is none, or something wasn't released.
    std::vector<std::string> liveObjects() const;

    /// For the next call of `method` ("getName", "BackupSet.getName", or "*" for any), or for
    /// each one, once so many of them as `after` says have passed. Injections for the same method
    /// meet its calls in the order given.
    void inject(std::string method, Injection injection, Times times = Times::Once,
                std::size_t after = 0);
    void clearInjections();
    /// How many injections have not met their call, or apply until cleared.
    std::size_t waitingInjections() const;

    /// Looks at the world or changes it, between two calls.
    void withWorld(const std::function<void(World&)>& visit);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace simulator
