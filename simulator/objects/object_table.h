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

/// The objects held by clients. Each hand-out has a unique URL, so every received reference must be
/// released exactly once.
class ObjectTable final : public References {
public:
    std::string handOut(const std::shared_ptr<Servant>& object) override;
    std::shared_ptr<Servant> resolve(const std::string& url) override;

    /// Releases the reference. Throws `Violation` if it wasn't held.
    void release(const std::string& url);

    /// True for references that are held now or were before.
    bool wasHandedOut(const std::string& url) const;

    /// Starts tracking a call whose hand-outs may never arrive.
    void watch() { watchedFrom_ = last_ + 1; }

    /// Marks the hand-outs since `watch` as lost in transit. They don't have to be released, but
    /// may be.
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
