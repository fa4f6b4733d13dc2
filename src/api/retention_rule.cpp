// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/retention_rule.h"

#include "api/remote_call.h"

namespace hessiancln {

std::string RetentionRule::getName() {
    return call<std::string>("getName");
}

void RetentionRule::setName(const std::string& name) {
    call<void>("setName", name);
}

std::int32_t RetentionRule::getKeepLastGenerations() {
    return call<std::int32_t>("getKeepLastGenerations");
}

void RetentionRule::setKeepLastGenerations(std::int32_t count) {
    call<void>("setKeepLastGenerations", count);
}

std::vector<RetentionRule::Option> RetentionRule::getTimeRetentions() {
    return call<std::vector<Option>>("getTimeRetentions");
}

void RetentionRule::addTimeRetentionOption(const Option& option) {
    call<void>("addTimeRetentionOption", option);
}

void RetentionRule::removeTimeRetentionOption(const Option& option) {
    call<void>("removeTimeRetentionOption", option);
}

bool RetentionRule::getCleanupRemovedFiles() {
    return call<bool>("getCleanupRemovedFiles");
}

void RetentionRule::setCleanupRemovedFiles(bool value) {
    call<void>("setCleanupRemovedFiles", value);
}

retention_time_span RetentionRule::getCleanupRemovedAfter() {
    return call<retention_time_span>("getCleanupRemovedAfter");
}

void RetentionRule::setCleanupRemovedAfter(const retention_time_span& span) {
    call<void>("setCleanupRemovedAfter", span);
}

std::int32_t RetentionRule::getCleanupRemovedKeep() {
    return call<std::int32_t>("getCleanupRemovedKeep");
}

void RetentionRule::setCleanupRemovedKeep(std::int32_t count) {
    call<void>("setCleanupRemovedKeep", count);
}

retention_time_span RetentionRule::getLocalStorageRetention() {
    return call<retention_time_span>("getLocalStorageRetention");
}

void RetentionRule::setLocalStorageRetention(const retention_time_span& span) {
    call<void>("setLocalStorageRetention", span);
}

} // namespace hessiancln
