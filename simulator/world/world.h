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

/// Rows of a log, which may be too long to be copied. Good until the world changes.
template <class Row>
using Rows = std::vector<const Row*>;

/// What the agent has and does, without any wire. Times follow the clock that it was given; the
/// rest follows the seed, so that equal clocks and seeds make equal worlds.
class World {
public:
    using Set = std::shared_ptr<BackupSetState>;

    World(Clock clock, double speed, std::uint64_t seed);

    Milliseconds now() const { return clock_(); }
    Random& random() { return random_; }

    /// Ends what has come to its end by now.
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
    /// Numbers that are set for all of the agent.
    std::map<std::string, std::int32_t> advancedConfig{{"ScheduleMiss", 4}};

    bool twoFactor = false;
    std::string twoFactorCode = "314159"; ///< that each mail tells
    /// Where the codes of users go who have no address of their own.
    std::string twoFactorAddress = "administrator@example.net";
    std::set<std::int32_t> requestedCodes; ///< the modes for which a code is under way
    std::set<std::int32_t> validatedCodes; ///< the modes for which it came back
    std::vector<hessiancln::user_email> userEmails;
    /// Takes the code that came back for a deletion. Raises `Refusal` if two-factor authentication
    /// is on and there is none.
    void spendCode();

    /// So far apart begin the ids of two views of a set; with 0 each begins at 1.
    std::int64_t idsPerView = 0;
    std::int64_t views = 0; ///< that were handed out

    Network network;
    Catalogue<ScheduleState> schedules;
    Catalogue<RetentionRuleState> retentionRules;

    /// In the order of the lists.
    const std::vector<Set>& sets() const { return sets_; }
    /// Null if there is none.
    Set set(std::int32_t id) const;
    /// Null if there is none. Names agree in any case.
    Set setNamed(const std::string& name) const;
    /// As lists show it.
    hessiancln::backup_set_info infoOf(const BackupSetState& set) const;
    /// That of its schedule.
    hessiancln::ScheduleDetailType scheduleTypeOf(const BackupSetState& set) const;
    /// Gives the set an id and puts it behind the others.
    void enlist(const Set& set);
    Set addSet(BackupSetState state);
    void removeSet(std::int32_t id);

    /// Begins an activity and gives it an id.
    std::int32_t start(ActivityPlan plan);
    /// False if no such activity is under way.
    bool stop(std::int32_t activityId);
    bool isRunning(std::int32_t activityId) const;
    std::vector<hessiancln::running_activity_info> running() const;

    /// A row of the past, older than all that follow. Its id is given.
    std::int32_t addToLog(hessiancln::activity_log_info row);
    void addEvent(hessiancln::event_log_info event);
    /// The events that the end of an activity leaves.
    void reportEnd(const hessiancln::activity_log_info& row);

    /// The rows that touch the span, both ends included, in seconds.
    Rows<hessiancln::activity_log_info> activityLog(std::int32_t from, std::int32_t to) const;
    /// The events of one activity, or of the span if `activityId` is 0.
    Rows<hessiancln::event_log_info> eventLog(std::int32_t from, std::int32_t to,
                                              std::int32_t activityId) const;
    /// The newest row of that kind for that set; an empty row if there is none.
    hessiancln::activity_log_info lastActivity(std::int32_t setId,
                                               hessiancln::ActivityType type) const;

    /// What a backup of the set would do now.
    ActivityPlan backupOf(const Set& set, const std::string& user);
    ActivityPlan synchronisationOf(const Set& set, const std::string& user);
    /// Deletes all that the set holds, and then the set.
    ActivityPlan removalOf(const Set& set, const std::string& user);

    /// The agent's own daily and weekly work.
    ActivityPlan dailyAdmin(const std::string& user);
    ActivityPlan weeklyAdmin(const std::string& user);
    /// Brings the agent's history back from the storage server.
    ActivityPlan databaseRecovery(const std::string& user);

    /// From now on a backup of one set after the other begins so often.
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
