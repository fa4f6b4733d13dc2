// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <optional>

#include <QString>

#include "config/chosen_file.h"

class QIODevice;

/// Customer registration files, which service providers issue for the registration of an agent.
/// Each line is a key, a "=" and a value, in UTF-8, or in Latin-1 if the line isn't valid UTF-8.
namespace config {

enum class CriKey {
    customerName,
    accountNumber,
    clientNumber,
    systemAddresses,
    privateKeyType,
    privateKey,
    accountKeyType,
    accountKey,
};

struct CriEntry {
    CriKey key;
    QString value; ///< may be an encryption key
};

/// The entry in a line. No value without a "=" or with an unknown key.
std::optional<CriEntry> criEntryOf(const QString& line);

/// Passes the entries, in their order, to `take`, which returns whether it took them. Skips lines
/// longer than `longestLine`. `file` is open for reading, as text. This function wipes what it has
/// read; open `file` unbuffered if nothing may stay in memory.
LinesRead readCri(QIODevice& file, const std::function<bool(const CriEntry&)>& take);

/// The cipher name for a number in such a file, which is one more than on the wire.
QString keyTypeOfCri(const QString& number);

/// The home directory of a logged-in user, where the search for such files starts.
QString homeOfLogin(const QString& user);

} // namespace config
