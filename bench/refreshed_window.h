// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <QObject>

#include "app/simple_gui_main_window.h"
#include "call_timer.h"

class BackupSetViewItem;

namespace bench {

/// Time spent in the parts of one refresh, in seconds. All parts run one after the other on the
/// window's thread, so their sum is the time for which the window doesn't respond.
struct RefreshTimes {
    double clientInfo = 0;
    double logFetch = 0; ///< until the whole reply has arrived
    double logShow = 0;  ///< decoding, sorting, updating the views
    double running = 0;
    double setsFetch = 0; ///< until the whole reply has arrived
    double cards = 0;     ///< including decoding
    double details = 0;
    double paint = 0;
    double whole = 0;
};

/// The work of the cards.
struct CardWork {
    std::size_t events = 0;   ///< for a new style sheet or a new layout
    std::size_t pictures = 0; ///< that differ from the previous ones
};

/// The visible main window with a session: it shows the session's whole log, and its first set is
/// selected. Heartbeats don't reach it.
class RefreshedWindow : public QObject {
public:
    /// `port` is an agent's port on loopback.
    explicit RefreshedWindow(std::uint16_t port);
    ~RefreshedWindow() override;

    /// What the first refresh took, which has made the cards near the view.
    double firstRefresh() const { return firstRefresh_; }
    /// The same without the time in which calls waited for their replies.
    double firstOwnTime() const { return firstOwn_; }

    /// Runs one heartbeat until its result is on the screen. Throws `std::runtime_error` if it
    /// didn't make all of its calls.
    RefreshTimes refresh();

    /// The time to decode the whole log, in seconds.
    double decodeLog();

    /// The widget of that name. Throws `std::runtime_error` without such a widget.
    template <class Widget>
    Widget& child(const char* name) const {
        if (auto* found = window_.findChild<Widget*>(QLatin1String(name)))
            return *found;
        throw std::runtime_error(std::string("The window has no ") + name);
    }

    std::size_t logRows() const;
    std::size_t setRows() const;
    std::vector<BackupSetViewItem*> cards() const;

    /// Makes all cards show something other than the agent's data.
    void spoilCards();
    /// The work of the cards in a refresh.
    CardWork workOfRefresh();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showDates(int from, int to);
    double refreshUntilShown();
    std::vector<std::int64_t> pictureKeys() const;

    boost::shared_ptr<CallTimer> timer_;
    SimpleGUIMainWindow window_;
    double firstRefresh_ = 0;
    double firstOwn_ = 0;
    std::size_t cardEvents_ = 0;
};

} // namespace bench
