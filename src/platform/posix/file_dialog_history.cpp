// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/file_dialog_history.h"

namespace platform {

struct NoFileDialogHistory::Found {};

NoFileDialogHistory::NoFileDialogHistory() = default;

NoFileDialogHistory::~NoFileDialogHistory() = default;

void NoFileDialogHistory::forget() {}

} // namespace platform
