// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "api/activity_records.h"
#include "api/backup_set_records.h"
#include "api/client_configuration_records.h"
#include "api/event_records.h"
#include "api/tarn_client_info.h"
#include "api/user_email.h"
#include "api/user_info.h"
#include "simulator/world/activity.h"
#include "simulator/world/backup_set_state.h"
#include "simulator/world/catalogue.h"
#include "simulator/world/clock.h"
#include "simulator/world/configuration_state.h"
#include "simulator/world/network.h"
#include "simulator/world/random.h"
#include "simulator/world/retention_state.h"
#include "simulator/world/schedule_state.h"

namespace simulator {

/// Rows of a log that may be too long to copy. Valid until the world changes.
template <class Row>
using Rows = std::vector<const Row*>;

/// The agent's data and behaviour, independent of the wire. Times follow the given clock,
/// everything else the seed, so that equal clocks and seeds produce equal worlds.
class World {
public:
    using Set = std::shared_ptr<BackupSetState>;

    World(Clock clock, double speed, std::uint64_t seed);

    Milliseconds now() const { return clock_(); }
    Random& random() { return random_; }

    /// Ends the activities that are due.
    void advance();

    std::int32_t clientType = 8;
    hessiancln::ClientOSType system = hessiancln::ClientOSType::Windows;
    std::string computer;
    std::vector<hessiancln::tarn_client_info> about;
    hessiancln::tarnc_reg_info registration;
    ConfigurationState configuration;
    hessiancln::user_info customer{276, hessiancln::EmployeeCountCode::UpTo50,
                                   hessiancln::IndustryCode::Computer};
    /// The numbers of the tools that are enabled.
    std::set<std::int32_t> tools{8};
    /// Numeric settings of the whole agent.
    std::map<std::string, std::int32_t> advancedConfig{{"ScheduleMiss", 4}};

    bool twoFactor = false;
    std::string twoFactorCode = "314159"; ///< sent in each mail
    /// The address for codes of users who have none of their own.
    std::string twoFactorAddress = "administrator@example.net";
    std::set<std::int32_t> requestedCodes; ///< the modes with a pending code
    std::set<std::int32_t> validatedCodes; ///< the modes with a validated code
    std::vector<hessiancln::user_email> userEmails;
    /// Consumes the validated code for a deletion. Throws `Refusal` if two-factor authentication is
    /// on and there is no such code.
    void spendCode();

    /// Distance between the first ids of two views of a set; with 0 each view begins at 1.
    std::int64_t idsPerView = 0;
    std::int64_t views = 0; ///< number handed out

    Network network;
    Catalogue<ScheduleState> schedules;
    Catalogue<RetentionRuleState> retentionRules;

    /// In list order.
    const std::vector<Set>& sets() const { return sets_; }
    /// Null if no set has this id.
    Set set(std::int32_t id) const;
    /// Null if no set has this name. Names are case-insensitive.
    Set setNamed(const std::string& name) const;
    /// The set's entry in lists.
    hessiancln::backup_set_info infoOf(const BackupSetState& set) const;
    /// The type of the set's schedule.
    hessiancln::ScheduleDetailType scheduleTypeOf(const BackupSetState& set) const;
    /// Gives the set an id and appends it to the others.
    void enlist(const Set& set);
    Set addSet(BackupSetState state);
    void removeSet(std::int32_t id);

    /// Starts an activity and returns its new id.
    std::int32_t start(ActivityPlan plan);
    /// Returns false if no such activity is running.
    bool stop(std::int32_t activityId);
    bool isRunning(std::int32_t activityId) const;
    std::vector<hessiancln::running_activity_info> running() const;

    /// Adds a row of the past, older than all later ones. Returns its id.
    std::int32_t addToLog(hessiancln::activity_log_info row);
    void addEvent(hessiancln::event_log_info event);
    /// Adds the events for the end of an activity.
    void reportEnd(const hessiancln::activity_log_info& row);

    /// The rows that overlap the span, in seconds, both ends included.
    Rows<hessiancln::activity_log_info> activityLog(std::int32_t from, std::int32_t to) const;
    /// The events of one activity, or of the span if `activityId` is 0.
    Rows<hessiancln::event_log_info> eventLog(std::int32_t from, std::int32_t to,
                                              std::int32_t activityId) const;
    /// The newest row of that kind for that set; an empty row if the log has no such row.
    hessiancln::activity_log_info lastActivity(std::int32_t setId,
                                               hessiancln::ActivityType type) const;

    /// A plan for a backup of the set now.
    ActivityPlan backupOf(const Set& set, const std::string& user);
    ActivityPlan synchronisationOf(const Set& set, const std::string& user);
    /// Deletes the content of the set, and then the set.
    ActivityPlan removalOf(const Set& set, const std::string& user);

    /// The agent's own daily and weekly tasks.
    ActivityPlan dailyAdmin(const std::string& user);
    ActivityPlan weeklyAdmin(const std::string& user);
    /// Recovers the agent's history from the storage server.
    ActivityPlan databaseRecovery(const std::string& user);

    /// From now on, starts a backup of each set in turn at this interval.
    void keepBusy(Milliseconds every);

private:
    ActivityPlan planOf(hessiancln::ActivityType type, const Set& set, const std::string& user);
    ActivityPlan ownWork(hessiancln::ActivityType type, const char* description,
                         const std::string& user);
    void startDueBackups();
    void end(std::vector<Activity>::iterator activity, Milliseconds when, bool stopped);

    Clock clock_;
    double speed_;
    Random random_;
    Milliseconds busyEvery_ = 0;
    Milliseconds nextBackup_ = 0;
    std::size_t turns_ = 0;
    std::int32_t lastSetId_ = 0;
    std::int32_t lastActivityId_ = 1000;
    std::vector<Set> sets_;
    std::vector<Activity> running_;
    std::vector<hessiancln::activity_log_info> log_;
    std::vector<hessiancln::event_log_info> events_;
};

} // namespace simulator
