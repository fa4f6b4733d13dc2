// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <condition_variable>
#include <fstream>
#include <mutex>
#include <string>
#include <vector>

#include "simulator/faults/injections.h"
#include "simulator/objects/journal.h"
#include "simulator/objects/object_table.h"
#include "simulator/options.h"
#include "simulator/world/world.h"

namespace simulator {

/// The agent behind the wire: finds the object of a call, runs the method, and logs it. A single
/// lock guards everything, so that tests can look at any time.
class Agent final : public wire::Exchange {
public:
    /// Throws `std::runtime_error` if the log file can't be written, or the keys for accepting
    /// logons can't be loaded.
    explicit Agent(Options options);

    wire::Answer answer(const wire::CallMessage& call) override;
    bool knowsObject(const std::string& url) override;
    void reportViolation(const std::string& text) override;

    const Options& options() const { return options_; }

    /// Hold this lock while using any of the members below.
    std::mutex& lock() const { return mutex_; }
    std::condition_variable& called() const { return called_; }
    std::vector<Call>& calls() { return calls_; }
    const std::vector<std::string>& violations() const { return violations_; }
    const ObjectTable& objects() const { return objects_; }
    Injections& injections() { return injections_; }
    World& world() { return world_; }

private:
    struct Step;

    wire::Answer run(Step& step);
    wire::Answer refuse(Step& step, const std::string& text, bool violation);
    std::shared_ptr<Servant> find(const wire::CallMessage& call, const std::string& method);
    Servant::Prepared prepareRelease(Step& step);
    void record(const Step& step);
    void violate(const std::string& text);
    void writeLine(const std::string& text);

    const Options options_;
    mutable std::mutex mutex_;
    mutable std::condition_variable called_;
    World world_;
    ObjectTable objects_;
    Injections injections_;
    std::vector<Call> calls_;
    std::vector<std::string> violations_;
    std::ofstream log_;
};

} // namespace simulator
