// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QWidget;

namespace wizards {

/// If the agent requires a second factor, asks the user for a code sent by mail, with `parent` as
/// the parent. False if the user gave none; then nothing may be written.
bool confirmByCode(QWidget& parent);

} // namespace wizards
