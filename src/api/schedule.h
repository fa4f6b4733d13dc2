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

    std::string getName();
    void setName(const std::string& name);
    std::vector<Detail> getDetails();
    void addDetail(const Detail& detail);
    void removeDetail(const Detail& detail);
    /// Runs only while the network connection is up.
    bool isUsingNetworkDetection();
    void setUsingNetworkDetection(bool value);
    void setBackupCPUThrottle(std::int32_t percent);
};

} // namespace hessiancln
