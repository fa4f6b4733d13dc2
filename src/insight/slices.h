// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <QObject>

namespace insight {

/// Does long work of the GUI thread in slices, between which the window answers: a few steps at a
/// time, for 30 milliseconds at most but for the last of them. A step makes at most one or two
/// calls to the agent.
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
    /// Emitted when a step had nothing left to do; not after `stop`.
    void finished();

private:
    void postSlice();
    void doSlice();

    std::function<bool()> step_;
    bool running_ = false;
    bool posted_ = false;
};

} // namespace insight
