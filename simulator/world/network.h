// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "api/browser_records.h"
#include "simulator/world/source_computer.h"

namespace simulator {

/// The computers that the agent can reach, and the containers they are in.
class Network {
public:
    using Type = hessiancln::NetItemType;
    using Computer = std::shared_ptr<SourceComputer>;

    /// Sets the agent's own computer, which also has the name `host`.
    void setLocal(SourceComputer computer, const std::string& host);
    /// Throws `Refusal` if the world has none.
    const Computer& local() const;

    /// Containers are listed in the order of insertion. Ancestors must already exist.
    void addContainer(const std::string& path, Type type = Type::Container);
    /// Its name is the path. It is listed in its container.
    Computer addComputer(SourceComputer computer);
    /// Makes the container inaccessible from now on; the text is the reason.
    void deny(const std::string& path, const std::string& why);

    /// The nodes in a container, or the topmost ones. Throws `Refusal`.
    std::vector<hessiancln::net_item_info> discover(const std::string& path) const;

    /// Finds a computer by its full name or the last part of it. Throws `Refusal` if it is unknown.
    const Computer& computer(const std::string& name) const;

    /// The full name for a typed one; unchanged if it is unknown.
    std::string expand(const std::string& name) const;

    /// Whether both names refer to the same computer.
    bool same(const std::string& one, const std::string& other) const;

private:
    struct Node {
        std::string path;
        Type type;
        std::string denied;
    };

    const Computer* find(const std::string& name) const;

    Computer local_;
    std::string host_;
    std::vector<Computer> computers_;
    std::vector<Node> nodes_;
};

} // namespace simulator
