// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include "tests/support/gui_exposed_text.h"

class QWidget;

namespace wizards_test {

inline constexpr char rightPassword[] = "s3same-0pen";

QString fieldText(QWidget& dialog, const char* edit);
bool canBeConfirmed(QWidget& dialog);

/// Replaces the field's content, as a user does after selecting all of it.
void type(QWidget& dialog, const char* edit, const QString& text);
void press(QWidget& dialog, const char* button);

using support::gives;

} // namespace wizards_test
