// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>
#include <vector>

#include "simulator/objects/servant.h"
#include "simulator/world/world.h"

namespace simulator {

class BackupSetCredentials;
class BackupSetItem;
class RetentionRule;
class Schedule;

/// A backup set; for a Windows computer it is a `Win32FS_BackupSet` too.
class BackupSet final : public Servant {
public:
    static constexpr std::string_view family = "BackupSet";

    BackupSet(std::shared_ptr<Session> opened, World& world, World::Set set);

    const World::Set& set() const { return set_; }
    std::string label() const override;

private:
    void offerFigures();
    void offerSettings();
    void offerLocalStorage();
    void offerPlans();
    void offerActivities();
    void offerViews();

    hessiancln::backup_set_status status() const;
    hessiancln::backup_set_overview_info overview() const;
    std::vector<std::shared_ptr<BackupSetItem>> items() const;
    void setItems(const std::vector<std::shared_ptr<BackupSetItem>>& items);
    std::shared_ptr<BackupSetCredentials> credentials() const;
    std::shared_ptr<Schedule> schedule() const;
    std::shared_ptr<RetentionRule> retentionRule() const;
    void requireLocalPath(bool wanted) const;
    const std::string& source() const;

    World& world_;
    World::Set set_;
};

} // namespace simulator
