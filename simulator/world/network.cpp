// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/network.h"

#include <algorithm>
#include <utility>

#include "simulator/objects/failures.h"
#include "simulator/world/names.h"

namespace simulator {
namespace {

bool isLocalName(std::string_view name) {
    return name == "My Computer" || name == "Tarn-Client Computer";
}

std::string_view containerOf(std::string_view path) {
    const std::size_t end = path.rfind('\\');
    return end == std::string_view::npos ? std::string_view() : path.substr(0, end);
}

} // namespace

void Network::setLocal(SourceComputer computer, const std::string& host) {
    computer.local = true;
    nodes_.push_back({computer.name, Type::Computer, {}});
    local_ = std::make_shared<SourceComputer>(std::move(computer));
    host_ = host;
}

const Network::Computer& Network::local() const {
    if (!local_)
        throw Refusal("The agent knows no computer.");
    return local_;
}

void Network::addContainer(const std::string& path, Type type) {
    nodes_.push_back({path, type, {}});
}

Network::Computer Network::addComputer(SourceComputer computer) {
    nodes_.push_back({computer.name, Type::Computer, {}});
    return computers_.emplace_back(std::make_shared<SourceComputer>(std::move(computer)));
}

void Network::deny(const std::string& path, const std::string& why) {
    for (Node& node : nodes_)
        if (node.path == path)
            node.denied = why;
}

std::vector<hessiancln::net_item_info> Network::discover(const std::string& path) const {
    if (!path.empty()) {
        const auto container = std::find_if(nodes_.begin(), nodes_.end(), [&path](const Node& one) {
            return one.path == path && one.type != Type::Computer;
        });
        if (container == nodes_.end())
            throw Refusal("There is no network '" + path + "'.");
        if (!container->denied.empty())
            throw Refusal(container->denied);
    }
    std::vector<hessiancln::net_item_info> list;
    for (const Node& node : nodes_)
        if (containerOf(node.path) == path)
            list.push_back({std::string(lastName(node.path)), node.type});
    return list;
}

const Network::Computer* Network::find(const std::string& name) const {
    if (local_ && (isLocalName(name) || agreeWithoutCase(name, host_)))
        return &local_;
    const auto found =
        std::find_if(computers_.begin(), computers_.end(), [&name](const Computer& one) {
            return agreeWithoutCase(one->name, name) || agreeWithoutCase(lastName(one->name), name);
        });
    return found == computers_.end() ? nullptr : &*found;
}

const Network::Computer& Network::computer(const std::string& name) const {
    const Computer* const found = find(name);
    if (!found)
        throw Refusal("The computer '" + name + "' can't be reached.");
    return *found;
}

std::string Network::expand(const std::string& name) const {
    const Computer* const found = find(name);
    return found ? (*found)->name : name;
}

bool Network::same(const std::string& one, const std::string& other) const {
    return expand(one) == expand(other);
}

} // namespace simulator
