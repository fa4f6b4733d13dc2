// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <optional>

#include <QString>

#include "config/chosen_file.h"

class QIODevice;

/// Customer registration files: what a service provider hands out for the registration of an
/// agent. One line for each thing, its key and its value with a "=" between them, in UTF-8, or in
/// Latin-1 where a line isn't UTF-8.
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

/// What a line says; none if it has no "=" or its key is unknown.
std::optional<CriEntry> criEntryOf(const QString& line);

/// Hands over what the lines say, in their order, to `take`, which says whether it took it. A line
/// that is longer than `longestLine` is passed over. `file` is open for reading, as text, and
/// unbuffered if none of it is to stay in memory: what this function has read is wiped.
LinesRead readCri(QIODevice& file, const std::function<bool(const CriEntry&)>& take);

/// The cipher name for a number in such a file, which is one more than on the wire.
QString keyTypeOfCri(const QString& number);

/// The home directory of a logged-in user, where such files are looked for.
QString homeOfLogin(const QString& user);

} // namespace config
