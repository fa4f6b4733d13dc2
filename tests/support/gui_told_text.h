// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QString;
class QWidget;

namespace support {

/// Whether somebody could read the text off a widget below, seeing or not.
bool gives(const QWidget& window, const QString& secret);

} // namespace support
