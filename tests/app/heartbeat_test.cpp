// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <atomic>
#include <optional>

#include <QEvent>
#include <QtTest>

#include <boost/thread/condition_variable.hpp>

#include "app/heartbeat.h"

namespace {

/// Seconds that pass when the test says so.
class SteppedSeconds {
public:
    /// For the heartbeat's thread.
    void sleep() {
        boost::unique_lock lock(mutex_);
        const int mine = ++begun_;
        changed_.notify_all();
        while (passed_ < mine)
            changed_.wait(lock);
    }

    /// Lets one second pass, and waits for the thread to begin the next one.
    void pass() {
        boost::unique_lock lock(mutex_);
        ++passed_;
        changed_.notify_all();
        while (begun_ <= passed_)
            changed_.wait(lock);
    }

    /// Waits for the thread to sleep.
    void waitUntilAsleep() {
        boost::unique_lock lock(mutex_);
        while (begun_ <= passed_)
            changed_.wait(lock);
    }

private:
    boost::mutex mutex_;
    boost::condition_variable changed_;
    int begun_ = 0;
    int passed_ = 0;
};

/// Counts the events that it gets, by their type.
class Receiver : public QObject {
public:
    int count(int type) const { return counts_.value(type); }

    bool event(QEvent* event) override {
        ++counts_[event->type()];
        return QObject::event(event);
    }

private:
    QMap<int, int> counts_;
};

/// A heartbeat in the middle of a second.
struct SleepingHeartbeat {
    SleepingHeartbeat() {
        heartbeat->start();
        seconds.waitUntilAsleep();
    }

    void sleep() {
        try {
            seconds.sleep();
        } catch (const boost::thread_interrupted&) {
            interrupted = true;
            throw;
        }
    }

    Receiver receiver;
    SteppedSeconds seconds;
    std::atomic<bool> interrupted = false;
    std::optional<app::Heartbeat> heartbeat{std::in_place, receiver, [this] { sleep(); }};
};

} // namespace

class HeartbeatTest : public QObject {
    Q_OBJECT
private slots:
    void beatsAfterFourSecondsAndThenEveryFifth() {
        Receiver receiver;
        SteppedSeconds seconds;
        app::Heartbeat heartbeat(receiver, [&seconds] { seconds.sleep(); });
        heartbeat.start();
        QList<int> beats;
        for (int second = 0; second < 14; ++second) {
            seconds.pass();
            QCoreApplication::processEvents();
            beats << receiver.count(heartbeat.eventType());
        }
        QCOMPARE(beats, (QList<int>{0, 0, 0, 1, 1, 1, 1, 1, 2, 2, 2, 2, 2, 3}));
    }

    void stopEndsTheThreadInTheMiddleOfASecond() {
        SleepingHeartbeat sleeping;
        QVERIFY(!sleeping.interrupted);
        sleeping.heartbeat->stop();
        QVERIFY(sleeping.interrupted);
    }

    void goingEndsTheThreadToo() {
        SleepingHeartbeat sleeping;
        sleeping.heartbeat.reset();
        QVERIFY(sleeping.interrupted);
    }

    void stopMayComeFirstOrTwice() {
        Receiver receiver;
        app::Heartbeat heartbeat(receiver);
        heartbeat.stop();
        app::Heartbeat running(receiver);
        running.start();
        running.stop();
        running.stop();
        QCoreApplication::processEvents();
        QCOMPARE(receiver.count(running.eventType()), 0);
    }

    void eachHasAnEventTypeOfItsOwn() {
        Receiver receiver;
        const app::Heartbeat one(receiver);
        const app::Heartbeat other(receiver);
        QVERIFY(one.eventType() >= QEvent::User);
        QVERIFY(one.eventType() != other.eventType());
    }
};

QTEST_GUILESS_MAIN(HeartbeatTest)
#include "heartbeat_test.moc"
