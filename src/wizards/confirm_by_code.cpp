// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/confirm_by_code.h"

#include "config/tfa_code_dlg.h"
#include "session/process_values.h"

namespace wizards {

namespace {

/// The purpose of a code, in the agent's encoding.
constexpr int changePurpose = 2;

} // namespace

bool confirmByCode(QWidget& parent) {
    return !session::g_is2FAEnabled ||
           TFACodeDlg(changePurpose, &parent).exec() == QDialog::Accepted;
}

} // namespace wizards
