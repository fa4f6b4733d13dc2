// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "paint_watch.h"

#include <algorithm>

#include <QEvent>

namespace bench {

using namespace std::chrono_literals;

PaintWatch::PaintWatch(QWidget& widget)
    : widget_(widget)
    , last_(Clock::now())
    , asking_([this] { ask(); }) {
    widget.installEventFilter(this);
}

PaintWatch::~PaintWatch() {
    ends_ = true;
    asking_.join();
}

bool PaintWatch::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Paint)
        mark();
    return false;
}

double PaintWatch::longestGap() {
    mark();
    return longest_ * 1e3;
}

void PaintWatch::ask() {
    while (!ends_) {
        QMetaObject::invokeMethod(&widget_, qOverload<>(&QWidget::update), Qt::QueuedConnection);
        std::this_thread::sleep_for(10ms);
    }
}

void PaintWatch::mark() {
    const auto now = Clock::now();
    longest_ = std::max(longest_, std::chrono::duration<double>(now - last_).count());
    last_ = now;
}

} // namespace bench
