// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QLineEdit;

namespace config {

/// Empties a field for keys or passwords, and overwrites what it held unless somebody else shares
/// it. What Qt has noted on its own way stays: the events of the keyboard, and the characters that
/// were typed one by one.
void wipe(QLineEdit& field);

} // namespace config
