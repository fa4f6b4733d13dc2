// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/slices.h"

#include <utility>

#include <QElapsedTimer>

#include "ui/later.h"

namespace insight {

namespace {

constexpr int mostSteps = 100;
constexpr qint64 sliceMilliseconds = 30;

} // namespace

Slices::Slices(std::function<bool()> step, QObject* parent)
    : QObject(parent)
    , step_(std::move(step)) {}

void Slices::start() {
    running_ = true;
    postSlice();
}

void Slices::postSlice() {
    if (std::exchange(posted_, true))
        return;
    ui::later(*this, [this] {
        posted_ = false;
        if (running_)
            doSlice();
    });
}

void Slices::doSlice() {
    QElapsedTimer time;
    time.start();
    bool hasMore = true;
    for (int i = 0; i < mostSteps && hasMore && time.elapsed() < sliceMilliseconds; ++i)
        hasMore = step_();
    if (!hasMore)
        stop();
    emit progressed();
    if (!hasMore)
        emit finished();
    else if (running_)
        postSlice();
}

} // namespace insight
