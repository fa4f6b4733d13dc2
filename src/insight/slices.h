// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <QObject>

namespace insight {

/// Runs long work on the GUI thread in slices, so that the window stays responsive: several steps
/// per slice, none started after 30 milliseconds. A step makes at most one or two calls to the
/// agent.
class Slices : public QObject {
    Q_OBJECT
public:
    /// `step` does the next piece of work and returns whether there is more. It must catch its own
    /// exceptions.
    explicit Slices(std::function<bool()> step, QObject* parent = nullptr);

    void start();
    void stop() { running_ = false; }
    bool isRunning() const { return running_; }

signals:
    /// Emitted after each slice.
    void progressed();
    /// Emitted after the last step; not after `stop`.
    void finished();

private:
    void postSlice();
    void doSlice();

    std::function<bool()> step_;
    bool running_ = false;
    bool posted_ = false;
};

} // namespace insight
