// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QHBoxLayout;

namespace ui {

/// Lets a row of a form continue on further lines where it is too narrow for one. A label stays
/// beside what it is for. To be called once the row has its widgets.
void letRowWrap(QHBoxLayout& row);

} // namespace ui
