// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string_view>

#include <QStringList>

/// The addresses of the storage server as a list in the user interface.
namespace config {

/// The addresses in the agent's text.
QStringList systemAddressesOf(std::string_view text);

/// The text for the agent.
std::string systemAddressesText(const QStringList& addresses);

/// The typed address if it can be added to the list: it isn't empty and not in it yet.
std::optional<QString> newSystemAddress(const QString& typed, const QStringList& addresses);

} // namespace config
