// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <exception>

#include <QString>

class QShowEvent;
class QWidget;
class QWizard;

namespace ui {

/// Gives a wizard what all of this program have: the icon, the four buttons, its title and the
/// picture beside its pages, which `watermark` names in the resources.
void frameWizard(QWizard& wizard, const QString& title, const QString& watermark);

/// Lets the user make a wizard as large as the screen allows, whatever its pages want.
void allowAnySize(QWizard& wizard);

/// For a page's show event: gives the focus to `first` once the wizard, which would choose by the
/// tab order alone, has turned to the page.
void focusFirst(const QShowEvent& event, QWidget& first);

/// Runs a wizard until it is closed. Whether it was finished. Raises what a page handed to
/// `failWizard`.
bool runWizard(QWizard& wizard);

/// For a page whose handler met an exception that is for the one who runs the wizard: it can't
/// leave through the event loop. Ends the wizard. Without one it is raised at once.
void failWizard(QWizard* wizard, const std::exception_ptr& failure);

} // namespace ui
