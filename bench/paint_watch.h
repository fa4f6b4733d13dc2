// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <chrono>
#include <thread>

#include <QObject>
#include <QWidget>

namespace bench {

/// Requests a repaint of a widget every 10 milliseconds, and measures the gaps between the paints.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& widget);
    ~PaintWatch() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// The longest time without a paint up to now, in milliseconds.
    double longestGap();

private:
    using Clock = std::chrono::steady_clock;

    void ask();
    void mark();

    QWidget& widget_;
    Clock::time_point last_;
    double longest_ = 0;
    std::atomic<bool> ends_ = false;
    std::thread asking_;
};

} // namespace bench
