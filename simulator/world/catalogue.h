// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace simulator {

/// Named objects with ids that backup sets share.
template <class State>
class Catalogue {
public:
    using Pointer = std::shared_ptr<State>;

    /// Assigns an id, starting at 1.
    Pointer add(State state) {
        state.id = ++lastId_;
        return all_.emplace_back(std::make_shared<State>(std::move(state)));
    }
    void remove(const Pointer& one) { std::erase(all_, one); }

    /// In the order of insertion.
    const std::vector<Pointer>& all() const { return all_; }

    bool holds(const Pointer& one) const {
        return std::find(all_.begin(), all_.end(), one) != all_.end();
    }
    /// Null if no object has this id.
    Pointer find(std::int32_t id) const {
        const auto found =
            std::find_if(all_.begin(), all_.end(), [id](const auto& one) { return one->id == id; });
        return found == all_.end() ? nullptr : *found;
    }
    /// Null if no object has this name.
    Pointer find(const std::string& name) const {
        const auto found = std::find_if(all_.begin(), all_.end(),
                                        [&name](const auto& one) { return one->name == name; });
        return found == all_.end() ? nullptr : *found;
    }

private:
    std::int32_t lastId_ = 0;
    std::vector<Pointer> all_;
};

} // namespace simulator
