// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>

#include <QString>

/// The account with which the agent looks up users in a directory.
namespace config {

struct AdAccountName {
    QString domain;
    QString user;
};

/// Splits the agent's text at the backslash into domain and user; no value without a backslash.
std::optional<AdAccountName> adAccountNameOf(const std::string& username);

/// The text for the agent; domain and user are trimmed.
std::string adUsernameOf(const AdAccountName& name);

/// The contents of the fields as typed.
struct AdAccountEntries {
    AdAccountName name;
    QString password;
    QString passwordConfirm;
};

/// The reason why the entries can't be sent, for display; empty if they can. User, password and
/// domain may all be empty: the agent then needs no account.
QString problemOf(const AdAccountEntries& entries);

} // namespace config
