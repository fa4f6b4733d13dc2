// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string_view>

#include "simulator/objects/servant.h"
#include "simulator/world/world.h"

namespace simulator {

/// How the agent accesses a computer. A browser treats objects with the same state as one.
class BackupSetCredentials : public Servant {
public:
    static constexpr std::string_view family = "BackupSetCredentials";
    using State = std::shared_ptr<CredentialsState>;

    BackupSetCredentials(std::shared_ptr<Session> opened, const World& world, State state);

    const State& state() const { return state_; }
    std::string label() const override;

protected:
    /// Registers the login methods of a class with user and password.
    void offerLogin();

    /// Replaces the login. Throws `Refusal` without a user.
    void setLogin(const std::string& user, const std::string& password, const std::string& keyFile,
                  const std::string& passphrase);

    State state_;
};

/// Creates credentials of the class for their kind.
std::shared_ptr<BackupSetCredentials> makeCredentials(const std::shared_ptr<Session>& opened,
                                                      const World& world,
                                                      const BackupSetCredentials::State& state);

} // namespace simulator
