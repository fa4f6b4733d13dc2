// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string_view>

#include <QStringList>

/// The addresses of the storage server, as a list on the screen.
namespace config {

/// The list in the agent's text.
QStringList systemAddressesOf(std::string_view text);

/// The text for the agent.
std::string systemAddressesText(const QStringList& addresses);

/// The address that somebody has typed, if it may join the list: it isn't empty and not in it.
std::optional<QString> newSystemAddress(const QString& typed, const QStringList& addresses);

} // namespace config
