// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/system_address_list.h"

#include "api/system_addresses.h"
#include "session/text.h"

namespace config {

QStringList systemAddressesOf(std::string_view text) {
    QStringList addresses;
    for (const std::string& address : hessiancln::splitSystemAddresses(text))
        addresses << session::fromWire(address);
    return addresses;
}

std::string systemAddressesText(const QStringList& addresses) {
    std::vector<std::string> texts;
    for (const QString& address : addresses)
        texts.push_back(session::toWire(address));
    return hessiancln::joinSystemAddresses(texts);
}

std::optional<QString> newSystemAddress(const QString& typed, const QStringList& addresses) {
    const QString address = typed.trimmed();
    if (address.isEmpty() || addresses.contains(address))
        return std::nullopt;
    return address;
}

} // namespace config
