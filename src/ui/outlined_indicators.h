// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QApplication;

namespace ui {

/// On a dark palette, Qt's own style frames check boxes and radio buttons in a shade that is barely
/// visible. After this call, the frames have a shade of the text colour. Other styles don't change.
void outlineIndicators(QApplication& application);

} // namespace ui
