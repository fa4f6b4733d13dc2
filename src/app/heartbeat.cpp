// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/heartbeat.h"

#include <QCoreApplication>
#include <QEvent>

#include <boost/date_time/posix_time/posix_time_types.hpp>

namespace app {

namespace {

constexpr int secondsPerBeat = 5;

} // namespace

void Heartbeat::sleepOneSecond() {
    boost::this_thread::sleep(boost::posix_time::seconds(1));
}

Heartbeat::Heartbeat(QObject& receiver, Sleep sleep)
    : receiver_(receiver)
    , sleep_(std::move(sleep))
    , eventType_(QEvent::registerEventType()) {}

Heartbeat::~Heartbeat() {
    stop();
}

void Heartbeat::start() {
    thread_ = boost::thread(&Heartbeat::run, this);
}

void Heartbeat::stop() {
    stop_ = true;
    thread_.interrupt();
    if (thread_.joinable())
        thread_.join();
}

void Heartbeat::run() {
    int seconds = 0;
    while (!stop_) {
        if (++seconds == secondsPerBeat) {
            QCoreApplication::postEvent(&receiver_,
                                        new QEvent(static_cast<QEvent::Type>(eventType_)));
            seconds = 0;
        }
        sleep_();
    }
}

} // namespace app
