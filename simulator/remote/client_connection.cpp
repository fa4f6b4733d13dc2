// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/client_connection.h"

#include "simulator/remote/backup_set.h"
#include "simulator/remote/client_configuration.h"
#include "simulator/remote/data_browser_with_set_creation.h"
#include "simulator/remote/generic_activity.h"
#include "simulator/remote/retention_rule_manager.h"
#include "simulator/remote/schedule_manager.h"
#include "simulator/remote/system_activity_manager.h"
#include "simulator/remote/tfa_manager.h"

namespace simulator {

ClientConnection::ClientConnection(std::shared_ptr<Session> opened, World& world)
    : Servant(std::move(opened))
    , world_(world) {
    implements("ClientConnection");
    on("getTarnClientType", [this] { return world_.clientType; });
    on("logout", [this] { session()->ended = true; });
    on("getTarnClientInfo", [this] { return world_.about; });

    on("backup_sets_info", [this] {
        std::vector<hessiancln::backup_set_info> list;
        for (const auto& set : world_.sets())
            list.push_back(world_.infoOf(*set));
        return list;
    });
    on("backup_set", [this](std::int32_t id) {
        const World::Set set = world_.set(id);
        if (!set)
            throw Refusal("There is no backup set with the id " + std::to_string(id) + ".");
        return std::make_shared<BackupSet>(session(), world_, set);
    });

    on("addBackupSet", [this](const std::shared_ptr<BackupSet>& set) { add(set->set()); });
    on("removeBackupSet", [this](const std::shared_ptr<BackupSet>& set) {
        if (world_.set(set->set()->info.id) != set->set())
            throw Refusal("There is no such backup set to remove.");
        world_.spendCode();
        const auto id = world_.start(world_.removalOf(set->set(), session()->user));
        return std::make_shared<GenericActivity>(session(), world_, id);
    });

    on("running_activities", [this] { return world_.running(); });
    on("activity", [this](std::int32_t id) {
        if (!world_.isRunning(id))
            throw Refusal("There is no running activity with the id " + std::to_string(id) + ".");
        return std::make_shared<GenericActivity>(session(), world_, id);
    });
    on("activity_log",
       [this](std::int32_t from, std::int32_t to) { return world_.activityLog(from, to); });
    on("event_log", [this](std::int32_t from, std::int32_t to, std::int32_t activityId) {
        return world_.eventLog(from, to, activityId);
    });

    on("createBrowser", [this](std::int32_t kind) { return browser(kind); });
    on("getScheduleManager",
       [this] { return std::make_shared<ScheduleManager>(session(), world_); });
    on("getRetentionRuleManager",
       [this] { return std::make_shared<RetentionRuleManager>(session(), world_); });
    on("getConfigurationManager",
       [this] { return std::make_shared<ClientConfiguration>(session(), world_); });
    on("getTFAManager", [this] { return std::make_shared<TFAManager>(session(), world_); });
    on("getSystemActivityManager",
       [this] { return std::make_shared<SystemActivityManager>(session(), world_); });
}

void ClientConnection::add(const World::Set& set) {
    if (world_.set(set->info.id))
        throw Refusal("The backup set is already there.");
    if (set->info.name.empty())
        throw Refusal("A backup set needs a name.");
    if (world_.setNamed(set->info.name))
        throw Refusal("There is a backup set '" + set->info.name + "' already.");
    world_.enlist(set);
}

std::shared_ptr<Servant> ClientConnection::browser(std::int32_t kind) {
    if (kind != 0)
        throw Refusal("There are no browsers of the kind " + std::to_string(kind) + ".");
    return std::make_shared<DataBrowserWithSetCreation>(session(), world_);
}

} // namespace simulator
