// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>

#include <QAction>
#include <QCoreApplication>

#include "app/activity_balloon.h"
#include "app/tray_icon.h"

class QMenu;
class QWidget;

namespace app {

/// A window's second life in the tray: the icon with its menu, the balloons about activities, and
/// the reminder that a closed window is only hidden.
class TrayPresence {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
public:
    static std::optional<QString> nameOnAgent(std::int32_t setId);

    /// Shows the icon. From now on the end of the program is `quit`, not the last window. The
    /// menu and its entries belong to `window`, which has to outlive this.
    TrayPresence(QWidget& window, QAction& quit, std::unique_ptr<TrayIcon> icon,
                 SetNames nameOf = nameOnAgent);
    ~TrayPresence();

    TrayIcon& icon() { return *icon_; }
    /// The entries of the menu. What they do is connected by the window.
    QAction& actionShow() { return actionShow_; }
    QAction& actionHide() { return actionHide_; }

    /// Sets all texts in the language of now.
    void setTexts();

    /// Also brings back a window that is minimized.
    void showWindow();
    /// Does nothing where the desktop has no tray to come back from.
    void hideWindow();

    /// A balloon about activities that have begun and ended, unless the user is looking at the
    /// window.
    void announce(const QList<hessiancln::running_activity_info>& appeared,
                  const QList<hessiancln::running_activity_info>& disappeared);
    /// A balloon about how an activity ended, as a warning if it had errors, unless the user is
    /// looking at the window.
    void announceEnd(const hessiancln::activity_log_info& ended, const QString& text);
    /// What the last balloon was about, if it was about an end.
    const std::optional<hessiancln::activity_log_info>& lastNews() const { return lastNews_; }
    /// A balloon that says where the window has gone, until `endReminder`.
    void remind();
    void endReminder() { showReminder_ = false; }

private:
    void setUpMenu(QAction& quit);
    bool isUserLooking() const;

    QWidget& window_;
    std::unique_ptr<TrayIcon> icon_;
    SetNames nameOf_;
    QAction& actionShow_;
    QAction& actionHide_;
    QMenu& menu_;
    bool showReminder_ = true;
    std::optional<hessiancln::activity_log_info> lastNews_;
};

} // namespace app
