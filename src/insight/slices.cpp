// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/slices.h"

#include <utility>

#include <QElapsedTimer>

namespace insight {

namespace {

constexpr int mostSteps = 100;
constexpr qint64 sliceMilliseconds = 30;

} // namespace

Slices::Slices(std::function<bool()> step, QObject* parent)
    : QObject(parent)
    , step_(std::move(step)) {
    connect(&timer_, &QTimer::timeout, this, &Slices::doSlice);
}

void Slices::start() {
    timer_.start(0);
}

void Slices::stop() {
    timer_.stop();
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
}

} // namespace insight
