// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>

#include <QByteArray>
#include <QString>

namespace ui {

/// Strings by key; keys are in upper case.
using StringTable = std::map<QString, QString>;

/// Adds the lines "key: value" of `text`, in UTF-8, to `table`, replacing existing values. Keys are
/// case-insensitive. A value may contain colons. "#" starts a comment anywhere. Other lines are
/// skipped.
void readStringTable(const QByteArray& text, StringTable& table);

} // namespace ui
