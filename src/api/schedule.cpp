// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/schedule.h"

#include "api/remote_call.h"

namespace hessiancln {

std::string Schedule::getName() {
    return call<std::string>("getName");
}

void Schedule::setName(const std::string& name) {
    call<void>("setName", name);
}

std::vector<Schedule::Detail> Schedule::getDetails() {
    return call<std::vector<Detail>>("getDetails");
}

void Schedule::addDetail(const Detail& detail) {
    call<void>("addDetail", detail);
}

void Schedule::removeDetail(const Detail& detail) {
    call<void>("removeDetail", detail);
}

bool Schedule::isUsingNetworkDetection() {
    return call<bool>("isUsingNetworkDetection");
}

void Schedule::setUsingNetworkDetection(bool value) {
    call<void>("setUsingNetworkDetection", value);
}

void Schedule::setBackupCPUThrottle(std::int32_t percent) {
    call<void>("setBackupCPUThrottle", percent);
}

} // namespace hessiancln
