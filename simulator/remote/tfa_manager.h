// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/objects/servant.h"
#include "simulator/world/world.h"

namespace simulator {

/// Codes by mail as a second factor. A code is valid once, for the requested mode.
class TFAManager final : public Servant {
public:
    TFAManager(std::shared_ptr<Session> opened, World& world);

private:
    /// Sends a code and returns the address.
    std::string request(std::int32_t mode);
    void validate(const std::string& code, std::int32_t mode);
    void setEmails(const std::vector<hessiancln::user_email>& emails);

    World& world_;
};

} // namespace simulator
