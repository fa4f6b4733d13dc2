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

/// Looks at what can be backed up, with one login at a time, and makes items of it.
class DataSourceBrowser : public Servant {
public:
    static constexpr std::string_view family = "DataSourceBrowser";

    /// The login begins as that of the agent's own computer.
    DataSourceBrowser(const std::shared_ptr<Session>& opened, World& world);
    /// The login begins as a set has it.
    DataSourceBrowser(std::shared_ptr<Session> opened, World& world, CredentialsState current);

    /// Raises `Refusal` if nobody knows the computer, or the login isn't good enough for it.
    void requireAccess(const std::string& computer) const;

protected:
    const CredentialsState& current() const { return *current_; }

    World& world_;

private:
    using Credentials = BackupSetCredentials::State;

    void offerLooks();
    void offerItems();
    void offerCredentials();

    /// Raises what `requireAccess` does.
    std::vector<hessiancln::browse_item_info> list(const std::string& computer,
                                                   const std::string& path) const;
    std::shared_ptr<BackupSetCredentials> fresh(const std::string& computer);
    void use(const Credentials& credentials);

    Credentials current_;
    std::vector<Credentials> made_; ///< that this browser has handed out
};

} // namespace simulator
