// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QLineEdit;
class QString;

/// Fields for keys and passwords. Qt announces to screen readers what a program does to a text,
/// even if the field hides it; these functions announce nothing.
namespace config {

/// Overwrites what the field held, unless somebody else shares it. What Qt has noted on its own way
/// stays: the events of the keyboard, and the characters that were typed one by one.
void fill(QLineEdit& field, const QString& secret);

/// Empties the field in the same way.
void wipe(QLineEdit& field);

} // namespace config
