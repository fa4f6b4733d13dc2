// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include <QObject>

#include "app/simple_gui_main_window.h"
#include "call_timer.h"

class BackupSetViewItem;

namespace bench {

/// Where the time of one refresh went, in seconds. All parts follow each other on the thread of the
/// window, so that together they are the time for which the window doesn't answer.
struct RefreshTimes {
    double clientInfo = 0;
    double logFetch = 0; ///< until the whole reply is there
    double logShow = 0;  ///< decoding, sorting, telling the views
    double running = 0;
    double setsFetch = 0; ///< until the whole reply is there
    double cards = 0;     ///< decoding included
    double details = 0;
    double paint = 0;
    double whole = 0;
};

/// What the cards were made to do.
struct CardWork {
    std::size_t events = 0;   ///< for a new style sheet or a new layout
    std::size_t pictures = 0; ///< that aren't those of before
};

/// The main window, shown, with a session whose whole log it shows and whose first set is selected.
/// Heartbeats don't reach it.
class RefreshedWindow : public QObject {
public:
    /// `port` is an agent's, on loopback.
    explicit RefreshedWindow(std::uint16_t port);
    ~RefreshedWindow() override;

    /// What the first refresh took, which has made the cards near the view.
    double firstRefresh() const { return firstRefresh_; }

    /// One heartbeat, until the screen shows what it brought. Raises `std::runtime_error` if it
    /// didn't go through all of its calls.
    RefreshTimes refresh();

    /// The time that it takes to decode the whole log, in seconds.
    double decodeLog();

    std::size_t logRows() const;
    std::size_t setRows() const;
    std::vector<BackupSetViewItem*> cards() const;

    /// Makes all cards look as they don't look on the agent.
    void spoilCards();
    /// What a refresh costs the cards.
    CardWork workOfRefresh();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    double refreshUntilShown();
    std::vector<std::int64_t> pictureKeys() const;

    boost::shared_ptr<CallTimer> timer_;
    SimpleGUIMainWindow window_;
    double firstRefresh_ = 0;
    std::size_t cardEvents_ = 0;
};

} // namespace bench
