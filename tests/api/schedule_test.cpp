// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/schedule_manager.h"

#include "tests/api/golden_configuration_records.h"
#include "tests/api/received.h"

namespace {

using namespace hessiancln;

class ScheduleTest : public ReceivingTest {
protected:
    const boost::shared_ptr<ScheduleManager> manager = proxyAt<ScheduleManager>("here");
    const boost::shared_ptr<Schedule> schedule = proxyAt<Schedule>("here");
    const boost::shared_ptr<ScheduleDetail> detail = proxyAt<ScheduleDetail>("here");
};

TEST_F(ScheduleTest, definedSchedules) {
    expect("c 01 00 m 00 10 'definedSchedules' z",
           "r 01 00 V r t 00 17 'com.norvel.api.Schedule' S 00 02 's1' N z z");
    auto schedules = manager->definedSchedules();
    ASSERT_EQ(schedules.size(), 2u);
    EXPECT_FALSE(schedules[1]);
    expectReceived(std::move(schedules[0]), "s1");
}

TEST_F(ScheduleTest, createSchedule) {
    expect("c 01 00 m 00 0E 'createSchedule' z",
           "r 01 00 r t 00 17 'com.norvel.api.Schedule' S 00 02 's1' z");
    expectReceived(manager->createSchedule(), "s1");
}

TEST_F(ScheduleTest, removeSchedule) {
    expect("c 01 00 m 00 0E 'removeSchedule' r t 00 17 'com.norvel.api.Schedule' S 00 02 's1' z",
           "r 01 00 z");
    manager->removeSchedule(proxyAt<Schedule>("s1"));
}

TEST_F(ScheduleTest, createWeeklyDetail) {
    expect("c 01 00 m 00 12 'createWeeklyDetail' z",
           "r 01 00 r t 00 23 'com.norvel.api.WeeklyScheduleDetail' S 00 01 'w' z");
    expectReceived(manager->createWeeklyDetail(), "w");
}

TEST_F(ScheduleTest, createMonthlyDetail) {
    expect("c 01 00 m 00 13 'createMonthlyDetail' z",
           "r 01 00 r t 00 24 'com.norvel.api.MonthlyScheduleDetail' S 00 01 'm' z");
    expectReceived(manager->createMonthlyDetail(), "m");
}

TEST_F(ScheduleTest, Name) {
    expect("c 01 00 m 00 07 'getName' z", "r 01 00 S 00 07 'Täglich' z");
    EXPECT_EQ(schedule->getName(), "Täglich");
    expect("c 01 00 m 00 07 'setName' S 00 07 'Büro €𝄞' z", "r 01 00 z");
    schedule->setName("Büro €𝄞");
}

TEST_F(ScheduleTest, getDetails) {
    expect("c 01 00 m 00 0A 'getDetails' z",
           "r 01 00 V t 00 04 'List' l 00 00 00 01 r t 00 23 'com.norvel.api.WeeklyScheduleDetail' "
           "S 00 01 'w' z z");
    auto details = schedule->getDetails();
    ASSERT_EQ(details.size(), 1u);
    expectReceived(std::move(details[0]), "w");
}

TEST_F(ScheduleTest, DetailsAreWrittenUnderTheNameOfTheFamily) {
    expect("c 01 00 m 00 09 'addDetail' r t 00 1D 'com.norvel.api.ScheduleDetail' S 00 01 'w' z",
           "r 01 00 z");
    schedule->addDetail(proxyAt<WeeklyScheduleDetail>("w"));
    expect("c 01 00 m 00 09 'addDetail' r t 00 1D 'com.norvel.api.ScheduleDetail' S 00 01 'm' z",
           "r 01 00 z");
    schedule->addDetail(proxyAt<MonthlyScheduleDetail>("m"));
    expect("c 01 00 m 00 0C 'removeDetail' r t 00 1D 'com.norvel.api.ScheduleDetail' S 00 01 'd' z",
           "r 01 00 z");
    schedule->removeDetail(proxyAt<ScheduleDetail>("d"));
}

TEST_F(ScheduleTest, NetworkDetection) {
    expect("c 01 00 m 00 17 'isUsingNetworkDetection' z", "r 01 00 T z");
    EXPECT_TRUE(schedule->isUsingNetworkDetection());
    expect("c 01 00 m 00 18 'setUsingNetworkDetection' F z", "r 01 00 z");
    schedule->setUsingNetworkDetection(false);
}

TEST_F(ScheduleTest, setBackupCPUThrottle) {
    expect("c 01 00 m 00 14 'setBackupCPUThrottle' I 00 00 00 64 z", "r 01 00 z");
    schedule->setBackupCPUThrottle(100);
}

TEST_F(ScheduleTest, getType) {
    expect("c 01 00 m 00 07 'getType' z", "r 01 00 I 00 00 00 03 z");
    EXPECT_EQ(detail->getType(), ScheduleDetailType::Monthly);
    expect("c 01 00 m 00 07 'getType' z", "r 01 00 I 00 00 00 05 z");
    EXPECT_EQ(detail->getType(), ScheduleDetailType{4});
}

TEST_F(ScheduleTest, StartTime) {
    expect("c 01 00 m 00 0C 'getStartTime' z",
           std::string("r 01 00 ") + golden::time_in_day + " z");
    EXPECT_EQ(detail->getStartTime().minute, 45);
    expect(std::string("c 01 00 m 00 0C 'setStartTime' ") + golden::time_in_day + " z",
           "r 01 00 z");
    detail->setStartTime({30, 45, 59});
}

TEST_F(ScheduleTest, EndTime) {
    expect("c 01 00 m 00 0A 'hasEndTime' z", "r 01 00 T z");
    EXPECT_TRUE(detail->hasEndTime());
    expect("c 01 00 m 00 0A 'getEndTime' z", std::string("r 01 00 ") + golden::time_in_day + " z");
    EXPECT_EQ(detail->getEndTime().hour, 30);
    expect("c 01 00 m 00 0A 'setEndTime' M t 00 1A 'com.norvel.api.time_in_day' S 00 04 'hour' I "
           "00 00 00 A7 S 00 06 'minute' I 00 00 00 0F S 00 06 'second' I 00 00 00 00 z z",
           "r 01 00 z");
    detail->setEndTime({167, 15, 0});
    expect("c 01 00 m 00 0C 'setNoEndTime' z", "r 01 00 z");
    detail->setNoEndTime();
}

TEST_F(ScheduleTest, HourlyFrequency) {
    expect("c 01 00 m 00 12 'getHourlyFrequency' z", "r 01 00 I 00 00 00 04 z");
    EXPECT_EQ(detail->getHourlyFrequency(), 4);
    expect("c 01 00 m 00 12 'setHourlyFrequency' I 00 00 00 00 z", "r 01 00 z");
    detail->setHourlyFrequency(0);
}

TEST_F(ScheduleTest, Tasks) {
    expect("c 01 00 m 00 08 'getTasks' z", "r 01 00 I 00 00 00 03 z");
    EXPECT_EQ(detail->getTasks(), 3);
    expect("c 01 00 m 00 08 'setTasks' I 00 00 00 03 z", "r 01 00 z");
    detail->setTasks(taskBackup | taskRetention);
}

TEST_F(ScheduleTest, ScheduleDays) {
    const auto weekly = proxyAt<WeeklyScheduleDetail>("here");
    expect("c 01 00 m 00 0F 'getScheduleDays' z", "r 01 00 I 00 00 00 7F z");
    EXPECT_EQ(weekly->getScheduleDays(), 127);
    expect("c 01 00 m 00 0F 'setScheduleDays' I 00 00 00 41 z", "r 01 00 z");
    weekly->setScheduleDays(dayMonday | daySunday);
}

TEST_F(ScheduleTest, ScheduleDay) {
    const auto monthly = proxyAt<MonthlyScheduleDetail>("here");
    expect("c 01 00 m 00 0E 'getScheduleDay' z", "r 01 00 I 00 00 00 1F z");
    EXPECT_EQ(monthly->getScheduleDay(), 31);
    expect("c 01 00 m 00 0E 'setScheduleDay' I 00 00 00 01 z", "r 01 00 z");
    monthly->setScheduleDay(1);
}

} // namespace
