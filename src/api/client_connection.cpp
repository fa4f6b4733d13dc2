// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/client_connection.h"

#include "api/remote_call.h"

namespace hessiancln {

std::int32_t ClientConnection::getTarnClientType() {
    return call<std::int32_t>("getTarnClientType");
}

std::vector<std::string> ClientConnection::getAvailableDomains() {
    return call<std::vector<std::string>>("getAvailableDomains");
}

boost::shared_ptr<ClientConnection>
ClientConnection::login(const std::string& url, const std::string& version, const std::string& user,
                        const std::string& password, std::int32_t flag) {
    return call<boost::shared_ptr<ClientConnection>>("login", url, version, user, password, flag);
}

sspi_login_info ClientConnection::sspi_login(const std::string& url, const std::string& version,
                                             const hessianser::Binary& token) {
    return call<sspi_login_info>("sspi_login", url, version, token);
}

void ClientConnection::logout() {
    call<void>("logout");
}

std::vector<tarn_client_info> ClientConnection::getTarnClientInfo() {
    return call<std::vector<tarn_client_info>>("getTarnClientInfo");
}

std::vector<backup_set_info> ClientConnection::backup_sets_info() {
    return call<std::vector<backup_set_info>>("backup_sets_info");
}

ClientConnection::Set ClientConnection::backup_set(std::int32_t id) {
    return call<Set>("backup_set", id);
}

void ClientConnection::addBackupSet(const Set& set) {
    call<void>("addBackupSet", set);
}

ClientConnection::Activity ClientConnection::removeBackupSet(const Set& set) {
    return call<Activity>("removeBackupSet", set);
}

std::vector<running_activity_info> ClientConnection::running_activities() {
    return call<std::vector<running_activity_info>>("running_activities");
}

ClientConnection::Activity ClientConnection::activity(std::int32_t id) {
    return call<Activity>("activity", id);
}

std::vector<activity_log_info> ClientConnection::activity_log(std::int32_t from, std::int32_t to) {
    return call<std::vector<activity_log_info>>("activity_log", from, to);
}

std::vector<event_log_info> ClientConnection::event_log(std::int32_t from, std::int32_t to,
                                                        std::int32_t activity_id) {
    return call<std::vector<event_log_info>>("event_log", from, to, activity_id);
}

boost::shared_ptr<DataSourceBrowser> ClientConnection::createBrowser(std::int32_t kind) {
    return call<boost::shared_ptr<DataSourceBrowser>>("createBrowser", kind);
}

boost::shared_ptr<ScheduleManager> ClientConnection::getScheduleManager() {
    return call<boost::shared_ptr<ScheduleManager>>("getScheduleManager");
}

boost::shared_ptr<RetentionRuleManager> ClientConnection::getRetentionRuleManager() {
    return call<boost::shared_ptr<RetentionRuleManager>>("getRetentionRuleManager");
}

boost::shared_ptr<ClientConfiguration> ClientConnection::getConfigurationManager() {
    return call<boost::shared_ptr<ClientConfiguration>>("getConfigurationManager");
}

boost::shared_ptr<TFAManager> ClientConnection::getTFAManager() {
    return call<boost::shared_ptr<TFAManager>>("getTFAManager");
}

boost::shared_ptr<SystemActivityManager> ClientConnection::getSystemActivityManager() {
    return call<boost::shared_ptr<SystemActivityManager>>("getSystemActivityManager");
}

} // namespace hessiancln
