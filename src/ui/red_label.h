// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QLabel;

namespace ui {

/// Keeps a label that its form shows in red, by a style sheet or in its text, readable on a dark
/// palette, also while the program runs.
void keepRedReadable(QLabel& label);

} // namespace ui
