// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/wizard_frame.h"

#include <QApplication>
#include <QPixmap>
#include <QPushButton>
#include <QShowEvent>

#include "ui/branding_resources.h"
#include "ui/later.h"
#include "ui/screen_fit.h"

Q_DECLARE_METATYPE(std::exception_ptr)

namespace ui {

namespace {

constexpr int largest = 65536;
constexpr char failureProperty[] = "failure";

struct WizardButtonText {
    Q_DECLARE_TR_FUNCTIONS(WizardButtonText)
};

/// A picture in the size for the screen's pixel density, which Qt selects only for icons.
QPixmap picture(const QString& resource) {
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap large(resource + QStringLiteral("@2x"));
    if (ratio <= 1 || large.isNull())
        return QPixmap(resource);
    const QSizeF size = large.size() * ratio / large.devicePixelRatio();
    // A label would scale it without smoothing.
    large = large.scaled(size.toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    large.setDevicePixelRatio(ratio);
    return large;
}

void setButton(QWizard& wizard, QWizard::WizardButton which, const QString& text,
               const QString& icon) {
    wizard.setButton(which, new QPushButton(QIcon(icon), text, &wizard));
    // With each page the wizard resets button texts that weren't set explicitly.
    wizard.setButtonText(which, text);
}

} // namespace

Wizard::~Wizard() {
    hide();
    QCoreApplication::removePostedEvents(this);
    for (QObject* part : findChildren<QObject*>())
        QCoreApplication::removePostedEvents(part);
}

void frameWizard(QWizard& wizard, const QString& title, const QString& watermark) {
    wizard.setWindowTitle(title);
    wizard.setWindowIcon(g_branding.applicationIcon());
    // Unless a style is set, the one of Windows takes over when the wizard is shown: without a
    // watermark, and without a text on the button for the way back.
    const QWizard::WizardStyle style = wizard.wizardStyle();
    wizard.setWizardStyle(style == QWizard::AeroStyle ? QWizard::ModernStyle : style);
    wizard.setPixmap(QWizard::WatermarkPixmap, picture(watermark));
    // In right-to-left layouts, forward is to the left.
    const bool mirrored = wizard.layoutDirection() == Qt::RightToLeft;
    const QString left = QStringLiteral(":/button/back.png");
    const QString right = QStringLiteral(":/button/forward.png");
    setButton(wizard, QWizard::BackButton, WizardButtonText::tr("&Back"), mirrored ? right : left);
    setButton(wizard, QWizard::NextButton, WizardButtonText::tr("&Next"), mirrored ? left : right);
    setButton(wizard, QWizard::FinishButton, WizardButtonText::tr("&Finish"),
              QStringLiteral(":/button/ok.png"));
    setButton(wizard, QWizard::CancelButton, WizardButtonText::tr("&Cancel"),
              QStringLiteral(":/button/cancel.png"));
    // A click on it doesn't move the focus, so an unfinished field sends no request to the agent.
    wizard.button(QWizard::CancelButton)->setFocusPolicy(Qt::TabFocus);
}

void allowAnySize(QWizard& wizard) {
    wizard.setMaximumSize(largest, largest);
}

void focusFirst(const QShowEvent& event, QWidget& first) {
    // A window restored from the task bar keeps its focus.
    if (event.spontaneous())
        return;
    QMetaObject::invokeMethod(
        &first, [&first] { first.setFocus(Qt::OtherFocusReason); }, Qt::QueuedConnection);
}

bool runWizard(QWizard& wizard) {
    giveOneSize(wizard);
    const bool finished = wizard.exec() == QDialog::Accepted;
    const auto failure = wizard.property(failureProperty).value<std::exception_ptr>();
    if (failure)
        std::rethrow_exception(failure);
    return finished;
}

void failWizard(QWizard* wizard, const std::exception_ptr& failure) {
    if (!wizard)
        std::rethrow_exception(failure);
    wizard->setProperty(failureProperty, QVariant::fromValue(failure));
    // Deferred, because the wizard may be in the middle of a page change.
    later(*wizard, [wizard] { wizard->reject(); });
}

} // namespace ui
