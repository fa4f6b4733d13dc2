// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "simulator/objects/references.h"
#include "simulator/objects/servant.h"

namespace simulator {

/// Which objects clients hold. Each hand-out has a URL of its own, so that every reference that
/// was received is to be released once.
class ObjectTable final : public References {
public:
    std::string handOut(const std::shared_ptr<Servant>& object) override;
    std::shared_ptr<Servant> resolve(const std::string& url) override;

    /// Takes the reference back. Raises `Violation` if it wasn't held.
    void release(const std::string& url);

    /// True for what is held, and for what was.
    bool wasHandedOut(const std::string& url) const;

    /// Begins a call, whose hand-outs may never arrive.
    void watch() { watchedFrom_ = last_ + 1; }

    /// What was handed out since `watch` got lost on its way. It isn't missed if nobody releases
    /// it, and may be released all the same.
    void loseWatched();

    /// Texts such as "BackupSet(3) https://127.0.0.1:4411/api/BackupSet/17", oldest first.
    std::vector<std::string> held() const;

private:
    struct Entry {
        std::uint64_t number;
        std::shared_ptr<Servant> object;
        bool lost = false;
    };

    std::map<std::string, Entry> entries_;
    std::uint64_t last_ = 0;
    std::uint64_t watchedFrom_ = 1;
};

} // namespace simulator
