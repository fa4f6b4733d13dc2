// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QHBoxLayout;

namespace ui {

/// Wraps a row of a form onto more lines when it is too narrow. A label stays beside its field.
/// Call this after adding the widgets.
void letRowWrap(QHBoxLayout& row);

} // namespace ui
