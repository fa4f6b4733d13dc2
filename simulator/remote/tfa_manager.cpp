// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/tfa_manager.h"

#include <set>
#include <utility>

#include "simulator/world/names.h"

namespace simulator {
namespace {

using hessiancln::user_email;

constexpr std::int32_t modeOfEmails = 1;
constexpr std::int32_t modeOfSets = 2;

void checkRows(const std::vector<user_email>& emails) {
    std::set<std::pair<std::string, std::string>> seen;
    for (const user_email& row : emails) {
        if (row.username.empty() || row.email.empty())
            throw Refusal("Each row needs a user and an e-mail address.");
        if (!seen.emplace(lowerCase(row.username), lowerCase(row.domain)).second)
            throw Refusal("There are two rows for the user '" + row.username + "'.");
    }
}

} // namespace

TFAManager::TFAManager(std::shared_ptr<Session> opened, World& world)
    : Servant(std::move(opened))
    , world_(world) {
    implements("TFAManager");
    on("is2FAEnabled", [this] { return world_.twoFactor; });
    on("requestCode", [this](std::int32_t mode) { return request(mode); });
    on("validateCode",
       [this](const std::string& code, std::int32_t mode) { validate(code, mode); });
    on("getUserEmails", [this] { return world_.userEmails; });
    on("setUserEmails", [this](const std::vector<user_email>& emails) { setEmails(emails); });
}

std::string TFAManager::request(std::int32_t mode) {
    if (!world_.twoFactor)
        throw Refusal("Two-factor authentication is switched off.");
    if (mode != modeOfEmails && mode != modeOfSets)
        throw Refusal("There are no codes of the mode " + std::to_string(mode) + ".");
    world_.requestedCodes.insert(mode);
    for (const user_email& row : world_.userEmails)
        if (agreeWithoutCase(row.username, lastName(session()->user)))
            return row.email;
    return world_.twoFactorAddress;
}

void TFAManager::validate(const std::string& code, std::int32_t mode) {
    if (world_.requestedCodes.count(mode) == 0)
        throw Refusal("No authentication code was asked for.");
    if (code != world_.twoFactorCode)
        throw Refusal("The authentication code is wrong.");
    world_.requestedCodes.erase(mode);
    world_.validatedCodes.insert(mode);
}

void TFAManager::setEmails(const std::vector<user_email>& emails) {
    if (world_.twoFactor && world_.validatedCodes.count(modeOfEmails) == 0)
        throw Refusal("The list of addresses needs an authentication code.");
    checkRows(emails);
    world_.validatedCodes.erase(modeOfEmails);
    world_.userEmails = emails;
}

} // namespace simulator
