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

/// An agent on a port of 127.0.0.1 that is strict with its clients.
///
///     simulator::Simulator agent({.scenario = simulator::Scenario::Central});
///     agent.inject("backup_sets_info", simulator::Fault{"The database is locked."});
///     connectToAgent(agent.address(), "demo", "demo", 1);
///     EXPECT_THAT(agent.violations(), IsEmpty());
///
/// It listens from construction on. Thread-safe.
class Simulator {
public:
    /// Throws `std::system_error` if the port isn't available, `std::runtime_error` if the log file
    /// can't be written, or the keys for accepting logons can't be loaded.
    explicit Simulator(Options options = {});

    /// Stops, regardless of what clients are doing.
    ~Simulator();

    Simulator(const Simulator&) = delete;
    Simulator& operator=(const Simulator&) = delete;

    std::uint16_t port() const;
    std::string address() const; ///< "127.0.0.1:4411"
    std::string baseUrl() const; ///< "https://127.0.0.1:4411"

    /// Closes the port and every connection. Keeps the world and the logs.
    void stop();
    /// Listens on the same port again.
    void restart();
    /// Cuts all open connections; new ones are accepted.
    void cutConnections();

    /// Every call that reached an object, in order, including refused ones.
    std::vector<Call> callLog() const;
    /// Likewise as texts, such as `BackupSet.setName("Documents")`.
    std::vector<std::string> callTexts() const;
    void clearCallLog();

    /// Waits until `method` ("setName" or "BackupSet.setName") is in the call log at least `count`
    /// times. False if that takes longer than `limit`.
    bool waitForCall(std::string_view method, std::size_t count = 1,
                     std::chrono::milliseconds limit = std::chrono::seconds(10)) const;

    /// Client behaviour that a correct client never shows, in order.
    std::vector<std::string> violations() const;

    /// The references that clients hold now, including the session's root. At the end of a test any
    /// remaining ones are leaks.
    std::vector<std::string> liveObjects() const;

    /// Applies to the next call of `method` ("getName", "BackupSet.getName", or "*" for any), or to
    /// each one, after skipping `after` calls. Injections for the same method apply to its calls in
    /// the given order.
    void inject(std::string method, Injection injection, Times times = Times::Once,
                std::size_t after = 0);
    void clearInjections();
    /// Number of injections that haven't met their call yet, or apply until cleared.
    std::size_t waitingInjections() const;

    /// Reads or changes the world between two calls.
    void withWorld(const std::function<void(World&)>& visit);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace simulator
