// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QWidget;

namespace wizards {

/// Where the agent wants a second factor: asks the user for a code by mail, in front of `parent`.
/// False if the user gave none, and then nothing may be written.
bool confirmByCode(QWidget& parent);

} // namespace wizards
