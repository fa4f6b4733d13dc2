// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>

#include "simulator/objects/servant.h"
#include "simulator/options.h"
#include "simulator/world/world.h"

namespace simulator {

/// The object that needs no login. A session's root is a different one.
class EntryPoint final : public Servant {
public:
    /// `baseUrl` is the agent's URL as used by the caller; `references` holds the sessions opened
    /// by logins. All arguments must outlive the object.
    EntryPoint(World& world, const Options& options, References& references, std::string baseUrl);

private:
    void checkClient(const std::string& url, const std::string& version) const;
    void checkUser(const std::string& user, const std::string& password, std::int32_t flag) const;
    std::shared_ptr<Servant> openSession(const std::string& user);

    World& world_;
    const Options& options_;
    References& references_;
    std::string baseUrl_;
};

} // namespace simulator
