// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include "base/secret.h"

/// Secrets between the screen and the wire.
namespace session {

/// Overwrites the text and empties it. Shared text is left to its other owners.
void wipe(QString& text);
void wipe(QByteArray& bytes);

/// Converts to UTF-8. Leaves no other copy behind.
base::Secret secretToWire(const QString& text);

} // namespace session
