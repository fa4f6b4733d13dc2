// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QString;
class QWidget;

namespace support {

/// Whether a child widget exposes the text, on the screen or through accessibility.
bool gives(const QWidget& window, const QString& secret);

} // namespace support
