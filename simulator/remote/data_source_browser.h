// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/objects/servant.h"
#include "simulator/remote/backup_set_credentials.h"
#include "simulator/world/world.h"

namespace simulator {

/// Browses what can be backed up, with one login at a time, and creates items from it.
class DataSourceBrowser : public Servant {
public:
    static constexpr std::string_view family = "DataSourceBrowser";

    /// Starts with the login for the agent's own computer.
    DataSourceBrowser(const std::shared_ptr<Session>& opened, World& world);
    /// Starts with the login of a set.
    DataSourceBrowser(std::shared_ptr<Session> opened, World& world, CredentialsState current);

    /// Throws `Refusal` if the computer is unknown, or the login isn't sufficient for it.
    void requireAccess(const std::string& computer) const;

protected:
    const CredentialsState& current() const { return *current_; }

    World& world_;

private:
    using Credentials = BackupSetCredentials::State;

    void offerLooks();
    void offerItems();
    void offerCredentials();

    /// Throws what `requireAccess` throws.
    std::vector<hessiancln::browse_item_info> list(const std::string& computer,
                                                   const std::string& path) const;
    std::shared_ptr<BackupSetCredentials> fresh(const std::string& computer);
    void use(const Credentials& credentials);

    Credentials current_;
    std::vector<Credentials> made_; ///< handed out by this browser
};

} // namespace simulator
