// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QWidget;

namespace ui {

/// Makes the date fields of `form` that have a calendar wide enough for their texts. Qt computes
/// their width for the buttons of a spin box, and paints the wider one of a combo box.
void fitDateFields(const QWidget& form);

} // namespace ui
