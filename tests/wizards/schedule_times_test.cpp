// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/schedule_times.h"

#include <climits>
#include <ostream>

#include <gtest/gtest.h>

#include <QtGlobal>

#include "session/wire_time.h"

// Next to the type, where GoogleTest looks for it.
inline void PrintTo(const QTime& time, std::ostream* out) {
    *out << time.toString(QStringLiteral("hh:mm:ss")).toStdString();
}

namespace {

using hessiancln::time_in_day;
using wizards::ScheduleChoice;
using wizards::StopTime;

QTime startOf(const char* clientNumber) {
    return wizards::defaultStart(QString::fromLatin1(clientNumber));
}

struct KnownStart {
    const char* clientNumber;
    QTime start;
};

// The first number of the generator that Qt uses, for the client's number as the seed.
#ifdef Q_OS_LINUX
// The minimal standard one: the seed, with 1 for 0, times 48271 modulo 2^31 - 1.
const QTime ofZero(22, 15);
const KnownStart knownStarts[] = {
    {"12345", QTime(21, 15)}, {"99999", QTime(23, 0)},  {"54321", QTime(18, 30)},
    {"10000", QTime(19, 45)}, {"23", QTime(18, 0)},     {"27", QTime(23, 30)},
    {"7", QTime(19, 0)},      {"42", QTime(18, 15)},    {"123", QTime(23, 15)},
    {"4711", QTime(18, 15)},  {"31792", QTime(20, 30)},
};
#else
// Microsoft's: bits 16 to 30 of the seed times 214013 plus 2531011.
const QTime ofZero(21, 45);
const KnownStart knownStarts[] = {
    {"12345", QTime(22, 15)}, {"99999", QTime(20, 30)}, {"54321", QTime(22, 30)},
    {"10000", QTime(20, 45)}, {"80", QTime(18, 0)},     {"2", QTime(23, 30)},
    {"7", QTime(21, 45)},     {"42", QTime(21, 30)},    {"123", QTime(18, 45)},
    {"4711", QTime(21, 0)},   {"31792", QTime(20, 30)},
};
#endif

TEST(DefaultStart, IsTheSameForAClientEachTime) {
    for (int times = 0; times < 2; ++times)
        for (const KnownStart& known : knownStarts)
            EXPECT_EQ(startOf(known.clientNumber), known.start) << known.clientNumber;
}

TEST(DefaultStart, TheLastFiveCharactersCount) {
    EXPECT_EQ(startOf("000000012345"), startOf("12345"));
    EXPECT_EQ(startOf("ABCDEFG54321"), startOf("54321"));
    EXPECT_EQ(startOf("999999900123"), startOf("123"));
}

TEST(DefaultStart, WhatIsNoNumberCountsAsZero) {
    EXPECT_EQ(startOf("0"), ofZero);
    EXPECT_EQ(startOf("ABCDE"), ofZero);
    EXPECT_EQ(startOf("00000001234X"), ofZero);
    EXPECT_EQ(startOf("-1"), ofZero);
    EXPECT_EQ(startOf(""), ofZero);
}

TEST(DefaultStart, IsAQuarterOfAnHourInTheEvening) {
    for (int number = 0; number < 1000; ++number) {
        const QTime start = wizards::defaultStart(QString::number(number));
        EXPECT_GE(start, QTime(18, 0));
        EXPECT_LE(start, QTime(23, 30));
        EXPECT_EQ(start.minute() % 15, 0);
    }
}

void expectTime(const time_in_day& time, int hour, int minute) {
    EXPECT_EQ(time.hour, hour);
    EXPECT_EQ(time.minute, minute);
    EXPECT_EQ(time.second, 0);
}

void expectStop(const StopTime& stop, const QTime& time, int days) {
    EXPECT_EQ(stop.time, time);
    EXPECT_EQ(stop.days, days);
}

TEST(StopTimes, TheHoursAreCountedFromTheDayOfTheStart) {
    expectTime(wizards::endTimeOf({QTime(23, 59), 0}), 23, 59);
    expectTime(wizards::endTimeOf({QTime(6, 0), 1}), 30, 0);
    expectTime(wizards::endTimeOf({QTime(0, 0), 1}), 24, 0);
    expectTime(wizards::endTimeOf({QTime(23, 59), 6}), 167, 59);
}

TEST(StopTimes, AnEndOnALaterDayIsReadBack) {
    expectStop(wizards::stopTimeOf({0, 0, 0}), QTime(0, 0), 0);
    expectStop(wizards::stopTimeOf({23, 59, 0}), QTime(23, 59), 0);
    expectStop(wizards::stopTimeOf({24, 0, 0}), QTime(0, 0), 1);
    expectStop(wizards::stopTimeOf({30, 0, 0}), QTime(6, 0), 1);
    expectStop(wizards::stopTimeOf({167, 59, 0}), QTime(23, 59), 6);
}

TEST(StopTimes, SecondsAreNotShown) {
    expectStop(wizards::stopTimeOf({6, 30, 59}), QTime(6, 30), 0);
}

TEST(StopTimes, AnEndThatCannotBeShownBecomesTheNearestThatCan) {
    expectStop(wizards::stopTimeOf({168, 0, 0}), QTime(23, 59), 6);
    expectStop(wizards::stopTimeOf({INT_MAX, INT_MAX, 0}), QTime(23, 59), 6);
    expectStop(wizards::stopTimeOf({-1, 0, 0}), QTime(0, 0), 0);
    expectStop(wizards::stopTimeOf({INT_MIN, INT_MIN, 0}), QTime(0, 0), 0);
    expectStop(wizards::stopTimeOf({23, 75, 0}), QTime(0, 15), 1);
}

TEST(StartTimes, AreTimesOfTheDay) {
    expectTime(session::wireTime(QTime(18, 45)), 18, 45);
    EXPECT_EQ(wizards::startTimeOf({18, 45, 30}), QTime(18, 45));
}

TEST(StartTimes, AStartThatCannotBeShownBecomesTheNearestThatCan) {
    EXPECT_EQ(wizards::startTimeOf({24, 0, 0}), QTime(23, 59));
    EXPECT_EQ(wizards::startTimeOf({INT_MAX, 0, 0}), QTime(23, 59));
    EXPECT_EQ(wizards::startTimeOf({-1, 0, 0}), QTime(0, 0));
    EXPECT_EQ(wizards::startTimeOf({10, -30, 0}), QTime(9, 30));
}

ScheduleChoice evening() {
    return {.daily = true,
            .anyDay = true,
            .stops = true,
            .stop = {QTime(23, 0), 0},
            .start = QTime(20, 0)};
}

TEST(ScheduleChoice, IsCompleteWhenItEndsAfterItsStart) {
    EXPECT_TRUE(wizards::isComplete(evening()));
}

TEST(ScheduleChoice, DailyNeedsADay) {
    ScheduleChoice choice = evening();
    choice.anyDay = false;
    EXPECT_FALSE(wizards::isComplete(choice));
    choice.daily = false;
    EXPECT_TRUE(wizards::isComplete(choice));
}

TEST(ScheduleChoice, AnEndBeforeTheStartIsNone) {
    ScheduleChoice choice = evening();
    choice.stop.time = QTime(19, 59);
    EXPECT_FALSE(wizards::isComplete(choice));
    choice.daily = false;
    choice.anyDay = false;
    EXPECT_FALSE(wizards::isComplete(choice));
}

TEST(ScheduleChoice, AnEndAtTheStartPasses) {
    ScheduleChoice choice = evening();
    choice.stop.time = choice.start;
    EXPECT_TRUE(wizards::isComplete(choice));
}

TEST(ScheduleChoice, AnEarlierTimeOnALaterDayPasses) {
    ScheduleChoice choice = evening();
    choice.stop = {QTime(6, 0), 1};
    EXPECT_TRUE(wizards::isComplete(choice));
}

TEST(ScheduleChoice, WithoutAnEndTheTimesDontMatter) {
    ScheduleChoice choice = evening();
    choice.stop.time = QTime(1, 0);
    choice.stops = false;
    EXPECT_TRUE(wizards::isComplete(choice));
}

} // namespace
