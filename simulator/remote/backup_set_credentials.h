// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string_view>

#include "simulator/objects/servant.h"
#include "simulator/world/world.h"

namespace simulator {

/// How the agent gets into a computer. Objects of the same state are one to a browser.
class BackupSetCredentials : public Servant {
public:
    static constexpr std::string_view family = "BackupSetCredentials";
    using State = std::shared_ptr<CredentialsState>;

    BackupSetCredentials(std::shared_ptr<Session> opened, const World& world, State state);

    const State& state() const { return state_; }
    std::string label() const override;

protected:
    /// The methods by which a class that asks for a user and a password takes them.
    void offerLogin();

    /// A new login in place of the old one. Raises `Refusal` if there is no user.
    void setLogin(const std::string& user, const std::string& password, const std::string& keyFile,
                  const std::string& passphrase);

    State state_;
};

/// Credentials of the class that their kind asks for.
std::shared_ptr<BackupSetCredentials> makeCredentials(const std::shared_ptr<Session>& opened,
                                                      const World& world,
                                                      const BackupSetCredentials::State& state);

} // namespace simulator
