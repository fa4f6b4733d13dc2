// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/activity_records.h"
#include "api/backup_set.h"
#include "api/backup_set_records.h"
#include "api/client_configuration.h"
#include "api/data_source_browser.h"
#include "api/event_records.h"
#include "api/generic_activity.h"
#include "api/remote_object.h"
#include "api/retention_rule_manager.h"
#include "api/schedule_manager.h"
#include "api/sspi_login_info.h"
#include "api/system_activity_manager.h"
#include "api/tarn_client_info.h"
#include "api/tfa_manager.h"

namespace hessiancln {

/// The root object: the entry point, which needs no login, and the session that a login returns.
///
/// The entry point is at the agent's address followed by "/api", and serves `getTarnClientType`,
/// `getAvailableDomains` and the two login methods. Times are seconds since 1970 UTC.
class ClientConnection : public RemoteObject {
public:
    using RemoteObject::RemoteObject;

    using Set = boost::shared_ptr<BackupSet>;
    using Activity = boost::shared_ptr<GenericActivity>;

    /// The kind of agent, as the number it sends.
    std::int32_t getTarnClientType();
    std::vector<std::string> getAvailableDomains();

    /// Starts a session. `flag` is 1 if a password was typed, 0 otherwise.
    boost::shared_ptr<ClientConnection> login(const std::string& url, const std::string& version,
                                              const std::string& user, const std::string& password,
                                              std::int32_t flag);
    /// One step of integrated logon.
    sspi_login_info sspi_login(const std::string& url, const std::string& version,
                               const hessianser::Binary& token);
    /// Ends the session.
    void logout();

    std::vector<tarn_client_info> getTarnClientInfo();

    std::vector<backup_set_info> backup_sets_info();
    Set backup_set(std::int32_t id);
    /// Adds a set created by a browser to the agent's sets.
    void addBackupSet(const Set& set);
    /// Deletes the set; the activity reports it.
    Activity removeBackupSet(const Set& set);

    std::vector<running_activity_info> running_activities();
    Activity activity(std::int32_t id);
    std::vector<activity_log_info> activity_log(std::int32_t from, std::int32_t to);
    /// The events of a time span or, if both times are 0, those of one activity.
    std::vector<event_log_info> event_log(std::int32_t from, std::int32_t to,
                                          std::int32_t activity_id);

    boost::shared_ptr<DataSourceBrowser> createBrowser(std::int32_t kind);
    boost::shared_ptr<ScheduleManager> getScheduleManager();
    boost::shared_ptr<RetentionRuleManager> getRetentionRuleManager();
    boost::shared_ptr<ClientConfiguration> getConfigurationManager();
    boost::shared_ptr<TFAManager> getTFAManager();
    boost::shared_ptr<SystemActivityManager> getSystemActivityManager();
};

} // namespace hessiancln
