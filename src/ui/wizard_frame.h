// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <exception>

#include <QString>
#include <QWizard>

class QShowEvent;

namespace ui {

/// A wizard whose pages release objects of the agent when they are destroyed. The events that are
/// delivered during such a call must not reach widgets that are half gone, so its destructor first
/// drops what is posted to any of its widgets.
class Wizard : public QWizard {
public:
    using QWizard::QWizard;
    ~Wizard() override;
};

/// Gives a wizard the common look: the icon, the four buttons, its title and the picture beside its
/// pages, which `watermark` names in the resources.
void frameWizard(QWizard& wizard, const QString& title, const QString& watermark);

/// Lets the user resize a wizard up to the screen size, whatever its pages request.
void allowAnySize(QWizard& wizard);

/// For a page's show event: gives the focus to `first` after the wizard, which would choose by tab
/// order alone, has turned to the page.
void focusFirst(const QShowEvent& event, QWidget& first);

/// Runs a wizard until it is closed. Returns whether it was finished. Throws what a page passed to
/// `failWizard`.
bool runWizard(QWizard& wizard);

/// For a page whose handler caught an exception meant for the caller of the wizard: it can't
/// propagate through the event loop. Ends the wizard. Without a wizard it is thrown immediately.
void failWizard(QWizard* wizard, const std::exception_ptr& failure);

} // namespace ui
