// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QFileDialog;

namespace ui {

/// Makes Qt's file dialog look like a dialog of the program, and names its fields for screen
/// readers. Call it after the dialog's options are set. A native dialog stays as it is.
void adaptFileDialog(QFileDialog& dialog);

/// Rejects each open file dialog. A native one has an event loop of its own, which the end of the
/// program doesn't end.
void rejectFileDialogs();

} // namespace ui
