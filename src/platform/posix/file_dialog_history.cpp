// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/file_dialog_history.h"

namespace platform {

struct NoFileDialogHistory::Found {};

NoFileDialogHistory::NoFileDialogHistory() = default;

NoFileDialogHistory::~NoFileDialogHistory() = default;

void NoFileDialogHistory::forget() {}

// The one of GTK has a list of recently used files.
bool desktopFileDialogKeepsHistory() {
    return true;
}

} // namespace platform
