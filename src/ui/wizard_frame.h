// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QWizard;

namespace ui {

/// Gives a wizard what all of this program have: the icon, the four buttons, its title and the
/// picture beside its pages, which `watermark` names in the resources.
void frameWizard(QWizard& wizard, const QString& title, const QString& watermark);

/// Lets the user make a wizard as large as the screen allows, whatever its pages want.
void allowAnySize(QWizard& wizard);

} // namespace ui
