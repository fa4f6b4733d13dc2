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

/// The window's presence in the tray: the icon with its menu, the balloons about activities, and
/// the reminder that a closed window is only hidden.
class TrayPresence {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
public:
    static std::optional<QString> nameOnAgent(std::int32_t setId);

    /// Shows the icon. From now on `quit` ends the program, not closing the last window. The menu
    /// and its entries are owned by `window`, which must outlive this.
    TrayPresence(QWidget& window, QAction& quit, std::unique_ptr<TrayIcon> icon,
                 SetNames nameOf = nameOnAgent);
    ~TrayPresence();

    TrayIcon& icon() { return *icon_; }
    /// The entries of the menu. The window connects their actions.
    QAction& actionShow() { return actionShow_; }
    QAction& actionHide() { return actionHide_; }

    /// Sets all texts in the current language.
    void setTexts();

    /// Also restores a minimised window. If the desktop refuses to activate the window, the window
    /// asks for attention.
    void showWindow();
    /// Does nothing if the desktop has no tray to restore it from.
    void hideWindow();
    /// Call periodically. Shows a hidden window again once the desktop has had no tray in two calls
    /// in a row: a panel that restarts is soon back.
    void keepReachable();

    /// Shows a balloon about activities that have started and ended, unless the window is active.
    void announce(const QList<hessiancln::running_activity_info>& appeared,
                  const QList<hessiancln::running_activity_info>& disappeared);
    /// Shows a balloon about how an activity ended, as a warning if it had errors, unless the
    /// window is active.
    void announceEnd(const hessiancln::activity_log_info& ended, const QString& text);
    /// The activity of the last balloon, if that was about an end.
    const std::optional<hessiancln::activity_log_info>& lastNews() const { return lastNews_; }
    /// The session that the news came from has ended.
    void forgetNews() { lastNews_.reset(); }
    /// Shows a balloon saying where the window has gone, until `endReminder`.
    void remind();
    void endReminder() { showReminder_ = false; }

private:
    void setUpMenu(QAction& quit);
    void bringToFront();
    bool isUserLooking() const;

    QWidget& window_;
    std::unique_ptr<TrayIcon> icon_;
    SetNames nameOf_;
    QAction& actionShow_;
    QAction& actionHide_;
    QMenu& menu_;
    bool showReminder_ = true;
    bool lostTray_ = false; ///< at the last look
    std::optional<hessiancln::activity_log_info> lastNews_;
};

} // namespace app
