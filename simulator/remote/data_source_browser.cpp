// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/data_source_browser.h"

#include <algorithm>
#include <utility>

#include "simulator/remote/backup_set_item.h"

namespace simulator {
namespace {

constexpr std::int32_t mostGenerations = 9'999;

/// The initial login for a computer.
CredentialsState loginFor(const SourceComputer& computer, const std::string& user) {
    CredentialsState credentials;
    credentials.kind = computer.kind;
    credentials.ofSession = computer.local;
    if (computer.local)
        credentials.user = user;
    return credentials;
}

ItemState item(const World& world, ItemState::Kind kind, const std::string& computer,
               const std::string& path) {
    if (path.empty())
        throw Refusal("An item needs a path.");
    ItemState state;
    state.kind = kind;
    state.computer = world.network.computer(computer)->name;
    state.folder = path;
    return state;
}

} // namespace

DataSourceBrowser::DataSourceBrowser(const std::shared_ptr<Session>& opened, World& world)
    : DataSourceBrowser(opened, world, loginFor(*world.network.local(), opened->user)) {}

DataSourceBrowser::DataSourceBrowser(std::shared_ptr<Session> opened, World& world,
                                     CredentialsState current)
    : Servant(std::move(opened))
    , world_(world)
    , current_(std::make_shared<CredentialsState>(std::move(current)))
    , made_{current_} {
    implements("DataSourceBrowser");
    offerLooks();
    offerItems();
    offerCredentials();
}

void DataSourceBrowser::offerLooks() {
    on("getSubItems", [this](const std::string& computer, const std::string& path) {
        return list(computer, path);
    });
    on("networkDiscovery",
       [this](const std::string& path) { return world_.network.discover(path); });
    on("expandToFullPath", [this](const std::string& name) { return world_.network.expand(name); });
    on("getPredefinedItems",
       [this](const std::string& computer) { return world_.network.computer(computer)->presets; });
}

void DataSourceBrowser::offerItems() {
    on("createInclusionItem",
       [this](const std::string& computer, const std::string& path, std::int32_t generations) {
           if (generations < 1 || generations > mostGenerations)
               throw Refusal("No item keeps " + std::to_string(generations) + " generations.");
           ItemState state = item(world_, ItemState::Kind::Inclusion, computer, path);
           state.generations = generations;
           return makeItem(session(), std::move(state));
       });
    on("createExclusionItem", [this](const std::string& computer, const std::string& path) {
        return makeItem(session(), item(world_, ItemState::Kind::Exclusion, computer, path));
    });
    on("createRegexExclusion",
       [this](const std::string& computer, const std::string& path, const std::string& expression) {
           if (expression.empty())
               throw Refusal("A regular expression is needed.");
           ItemState state = item(world_, ItemState::Kind::Regex, computer, path);
           state.expression = expression;
           return makeItem(session(), std::move(state));
       });
}

void DataSourceBrowser::offerCredentials() {
    on("getCurrentCredentials", [this] { return makeCredentials(session(), world_, current_); });
    on("setCurrentCredentials",
       [this](const std::shared_ptr<BackupSetCredentials>& value) { use(value->state()); });
    on("neededCredentials", [this](const std::string& computer) { return fresh(computer); });
}

void DataSourceBrowser::requireAccess(const std::string& computer) const {
    const Network::Computer source = world_.network.computer(computer);
    if (!source->local)
        logIn(*current_, *source);
}

std::vector<hessiancln::browse_item_info> DataSourceBrowser::list(const std::string& computer,
                                                                  const std::string& path) const {
    requireAccess(computer);
    return world_.network.computer(computer)->folders.list(path);
}

std::shared_ptr<BackupSetCredentials> DataSourceBrowser::fresh(const std::string& computer) {
    CredentialsState login = loginFor(*world_.network.computer(computer), session()->user);
    made_.push_back(std::make_shared<CredentialsState>(std::move(login)));
    return makeCredentials(session(), world_, made_.back());
}

void DataSourceBrowser::use(const Credentials& credentials) {
    const bool ours = std::find(made_.begin(), made_.end(), credentials) != made_.end();
    if (!ours && !credentials->ofSet)
        throw Refusal("These credentials belong to another browser.");
    current_ = credentials;
}

} // namespace simulator
