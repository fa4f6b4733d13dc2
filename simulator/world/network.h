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

/// The computers that the agent can reach, and the containers in which people find them.
class Network {
public:
    using Type = hessiancln::NetItemType;
    using Computer = std::shared_ptr<SourceComputer>;

    /// The agent's own computer, which also goes by the name `host`.
    void setLocal(SourceComputer computer, const std::string& host);
    /// Raises `Refusal` if the world has none.
    const Computer& local() const;

    /// Containers are listed in the order in which they come. Those above must be there.
    void addContainer(const std::string& path, Type type = Type::Container);
    /// Its name is the path. It is listed below its container.
    Computer addComputer(SourceComputer computer);
    /// From now on nobody can look into the container; the text says why.
    void deny(const std::string& path, const std::string& why);

    /// The nodes below a container, or the topmost ones. Raises `Refusal`.
    std::vector<hessiancln::net_item_info> discover(const std::string& path) const;

    /// By its full name or by the last part of it. Raises `Refusal` if nobody knows it.
    const Computer& computer(const std::string& name) const;

    /// The full name of what somebody typed; as it is if nobody knows it.
    std::string expand(const std::string& name) const;

    /// Whether both names stand for the same computer.
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
