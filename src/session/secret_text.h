// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include "base/secret.h"

/// Secrets on the border between the screen and the wire.
namespace session {

/// Overwrites the text and empties it. One that others share is left to them.
void wipe(QString& text);
void wipe(QByteArray& bytes);

/// In UTF-8. No other copy of it stays behind.
base::Secret secretToWire(const QString& text);

} // namespace session
