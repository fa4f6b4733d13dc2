// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>

#include <QByteArray>
#include <QString>

namespace ui {

/// Strings by key; keys are in upper case.
using StringTable = std::map<QString, QString>;

/// Puts the lines "key: value" of `text`, in UTF-8, into `table`, over what stood there. Keys come
/// in any case. A value may hold colons. "#" starts a comment anywhere. Other lines are skipped.
void readStringTable(const QByteArray& text, StringTable& table);

} // namespace ui
