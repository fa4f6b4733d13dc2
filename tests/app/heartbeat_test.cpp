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

    /// Lets one second pass, and waits until the thread starts the next one.
    void pass() {
        boost::unique_lock lock(mutex_);
        ++passed_;
        changed_.notify_all();
        while (begun_ <= passed_)
            changed_.wait(lock);
    }

    /// Waits until the thread sleeps.
    void waitUntilAsleep() {
        boost::unique_lock lock(mutex_);
        while (begun_ <= passed_)
            changed_.wait(lock);
    }

    /// Lets seconds pass, for a thread that may have gone.
    void pass(int count) {
        const boost::lock_guard lock(mutex_);
        passed_ += count;
        changed_.notify_all();
    }

    /// The seconds that the thread has begun.
    int begun() {
        const boost::lock_guard lock(mutex_);
        return begun_;
    }

private:
    boost::mutex mutex_;
    boost::condition_variable changed_;
    int begun_ = 0;
    int passed_ = 0;
};

/// Counts the events it receives, by type.
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

    void stopMayComeFirst() {
        Receiver receiver;
        SteppedSeconds seconds;
        app::Heartbeat heartbeat(receiver, [&seconds] { seconds.sleep(); });
        seconds.pass(5);
        heartbeat.stop();
        heartbeat.start(); // has nothing left to do
        heartbeat.stop();
        QCoreApplication::processEvents();
        QCOMPARE(seconds.begun(), 0);
        QCOMPARE(receiver.count(heartbeat.eventType()), 0);
    }

    void noBeatComesAfterTheFirstOfTwoStops() {
        SleepingHeartbeat sleeping;
        for (int second = 0; second < 3; ++second)
            sleeping.seconds.pass();
        sleeping.heartbeat->stop();
        QVERIFY(sleeping.interrupted);
        sleeping.seconds.pass(5);
        sleeping.heartbeat->stop();
        QCoreApplication::processEvents();
        QCOMPARE(sleeping.seconds.begun(), 4);
        QCOMPARE(sleeping.receiver.count(sleeping.heartbeat->eventType()), 0);
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
