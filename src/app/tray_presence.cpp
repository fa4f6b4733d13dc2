// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/tray_presence.h"

#include <utility>

#include <QApplication>
#include <QMenu>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include "app/open_backup_set.h"
#include "session/text.h"
#include "ui/branding_resources.h"

namespace app {

namespace {

// In milliseconds
constexpr int timeToActivate = 300;
constexpr int timeOfABusyMachine = 5000;

QString productName() {
    return QStringLiteral("Tarn-Mobile User");
}

void letTheWindowHide() {
    // A dialog over the hidden window is the last visible one, and closing it must not quit.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // At logout Qt would close the window, which only hides, and treat that as a refusal to end the
    // desktop session.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
}

/// On a busy machine Qt gets the focus events of hiding and showing together, perhaps seconds
/// later, and assumes that the window is still inactive.
void correctFocus(QWidget& window) {
    if (!QApplication::activeWindow() && window.windowHandle() == QGuiApplication::focusWindow())
        QApplication::setActiveWindow(&window);
}

/// Does so each time that `timeToActivate` has passed, for `left` milliseconds.
void keepCorrectingFocus(QWidget& window, int left) {
    QTimer::singleShot(timeToActivate, &window, [&window, left] {
        if (!window.isVisible())
            return;
        correctFocus(window);
        if (left > timeToActivate)
            keepCorrectingFocus(window, left - timeToActivate);
    });
}

/// Makes up for an activation that went wrong.
void insistOnFocus(QWidget& window) {
    if (!window.isVisible())
        return;
    correctFocus(window);
    keepCorrectingFocus(window, timeOfABusyMachine);
    if (QApplication::activeWindow())
        return;
    // A desktop refuses the focus to a program whose last event is older than what the user did
    // elsewhere. By now there are newer ones.
    window.activateWindow();
    QApplication::alert(&window);
}

} // namespace

std::optional<QString> TrayPresence::nameOnAgent(std::int32_t setId) {
    try {
        return session::fromWire(openBackupSet(setId)->getName());
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

TrayPresence::TrayPresence(QWidget& window, QAction& quit, std::unique_ptr<TrayIcon> icon,
                           SetNames nameOf)
    : window_(window)
    , icon_(std::move(icon))
    , nameOf_(std::move(nameOf))
    , actionShow_(*new QAction(&window))
    , actionHide_(*new QAction(&window))
    , menu_(*new QMenu(&window)) {
    letTheWindowHide();
    setUpMenu(quit);
    icon_->setIcon(ui::g_branding.applicationIcon());
    setTexts();
    icon_->show();
    // The window is about to be shown.
    actionShow_.setEnabled(false);
}

TrayPresence::~TrayPresence() = default;

void TrayPresence::setUpMenu(QAction& quit) {
    actionShow_.setObjectName(QStringLiteral("actionShow"));
    actionHide_.setObjectName(QStringLiteral("actionHide"));
    menu_.setObjectName(QStringLiteral("menuTray"));
    menu_.addAction(&actionShow_);
    menu_.addAction(&actionHide_);
    menu_.addSeparator();
    menu_.addAction(&quit);
    icon_->setContextMenu(&menu_);
}

void TrayPresence::setTexts() {
    actionShow_.setText(tr("Show"));
    actionHide_.setText(tr("Hide"));
    icon_->setToolTip(tr("%1").arg(productName()));
}

void TrayPresence::showWindow() {
    actionShow_.setEnabled(false);
    actionHide_.setEnabled(true);
    if (window_.isMaximized())
        window_.showMaximized();
    else
        window_.showNormal();
    bringToFront();
}

void TrayPresence::bringToFront() {
    window_.raise();
    window_.activateWindow();
    QTimer::singleShot(timeToActivate, &window_, [&window = window_] { insistOnFocus(window); });
}

void TrayPresence::hideWindow() {
    if (!icon_->isAvailable())
        return;
    window_.hide();
    actionShow_.setEnabled(true);
    actionHide_.setEnabled(false);
}

void TrayPresence::keepReachable() {
    const bool isLost = actionShow_.isEnabled() && !window_.isVisible() && !icon_->isAvailable();
    if (std::exchange(lostTray_, isLost) && isLost)
        showWindow();
}

void TrayPresence::announce(const QList<hessiancln::running_activity_info>& appeared,
                            const QList<hessiancln::running_activity_info>& disappeared) {
    if (isUserLooking())
        return;
    lastNews_.reset();
    icon_->showBalloon(tr("Ostrand Backup Activity"),
                       activityBalloonText(appeared, disappeared, nameOf_));
}

bool TrayPresence::isUserLooking() const {
    return window_.isVisible() && window_.isActiveWindow();
}

void TrayPresence::announceEnd(const hessiancln::activity_log_info& ended, const QString& text) {
    if (isUserLooking())
        return;
    lastNews_ = ended;
    if (ended.errors >= 1)
        icon_->showWarning(tr("Ostrand Backup Activity"), text);
    else
        icon_->showBalloon(tr("Ostrand Backup Activity"), text);
}

void TrayPresence::remind() {
    if (!showReminder_)
        return;
    lastNews_.reset();
    icon_->showBalloon(tr("%1 is still running!").arg(productName()),
                       tr("You can click the icon to show the window.\n\nClick here to not "
                          "show this reminder again."));
}

} // namespace app
