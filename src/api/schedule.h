// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/remote_object.h"
#include "api/schedule_detail.h"

namespace hessiancln {

/// When backups run; shared by the sets that refer to it.
class Schedule : public RemoteObject {
public:
    static constexpr std::string_view family = "Schedule";
    using RemoteObject::RemoteObject;

    using Detail = boost::shared_ptr<ScheduleDetail>;

    std::string getName() { return call<std::string>("getName"); }
    void setName(const std::string& name) { call<void>("setName", name); }
    std::vector<Detail> getDetails() { return call<std::vector<Detail>>("getDetails"); }
    void addDetail(const Detail& detail) { call<void>("addDetail", detail); }
    void removeDetail(const Detail& detail) { call<void>("removeDetail", detail); }
    /// Runs only while the network connection is up.
    bool isUsingNetworkDetection() { return call<bool>("isUsingNetworkDetection"); }
    void setUsingNetworkDetection(bool value) { call<void>("setUsingNetworkDetection", value); }
    void setBackupCPUThrottle(std::int32_t percent) { call<void>("setBackupCPUThrottle", percent); }
};

} // namespace hessiancln
