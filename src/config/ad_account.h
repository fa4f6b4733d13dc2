// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>

#include <QString>

/// The account with which the agent looks people up in a directory.
namespace config {

struct AdAccountName {
    QString domain;
    QString user;
};

/// Domain and user of the text that the agent keeps; none without a backslash, which stands
/// between the two.
std::optional<AdAccountName> adAccountNameOf(const std::string& username);

/// The text for the agent, without the blanks around domain and user.
std::string adUsernameOf(const AdAccountName& name);

/// What stands in the fields, as it was typed.
struct AdAccountEntries {
    AdAccountName name;
    QString password;
    QString passwordConfirm;
};

/// What forbids to send it, for the screen; empty if nothing does. All of user, password and
/// domain may be empty: the agent then needs no account.
QString problemOf(const AdAccountEntries& entries);

} // namespace config
