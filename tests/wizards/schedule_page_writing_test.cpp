// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/wizards/schedule_page_fixture.h"

namespace {

using Calls = PageFixture::Calls;
using Page = ShownSchedulePage;
using hessiancln::ScheduleDetailType;

const Calls lastCalls{"BackupSet.setActive(true)", "ClientConnection.getConfigurationManager()",
                      "ClientConfiguration.setAdvancedConfigNumber(\"ScheduleMiss\", 4)"};

} // namespace

/// What the schedule page writes to the agent.
class SchedulePageWritingTest : public QObject, private SchedulePageFixture {
    Q_OBJECT
private slots:
    void init() { start(); }
    void cleanup() { end(); }

    void aSharedScheduleIsLeftAlone();
    void theOwnScheduleIsRewritten();
    void anOwnScheduleThatTheSetLostIsTakenAgain();
    void aMonthlyScheduleIsWritten();
    void theDaysAreAMaskFromMonday();
    void aStopOnTheNextDayIsHour30();
    void theLatestStopIsHour167();
    void withoutAStopThereIsNoEnd();
    void anHourlyScheduleIsWritten();
    void theCloudConnectionIsWritten();
    void leavingTheOwnScheduleRemovesIt();
    void leavingASharedScheduleDetachesIt();
    void stayingUnscheduledWritesNoSchedule();
    void aNameInOtherCaseIsAnotherSchedule();
    void theMissedScheduleIsWrittenWhileItIsDisabled();
    void aSetThatWasReadIsWrittenAsItWas();
    void aFaultLeavesWhatWasDone();

private:
    /// What the page has written to a set.
    Detail written(Page& page) {
        const Set set = openSet(music);
        page->apply(set);
        return *scheduleOf(music).details.at(0);
    }
};

void SchedulePageWritingTest::aSharedScheduleIsLeftAlone() {
    const Schedule before = scheduleOf(documents);
    Page page;
    const Set set = openSet(documents);
    page->apply(set);
    QCOMPARE(takeCalls(),
             (Calls{"BackupSet.getID()",
                    "BackupSet.getSchedule()",
                    "ClientConnection.getScheduleManager()",
                    "Schedule.getName()",
                    "ScheduleManager.definedSchedules()",
                    "Schedule.getName()",
                    "Schedule.getName()",
                    "Schedule.getName()",
                    "ScheduleManager.createSchedule()",
                    "Schedule.setName(\"schedule_for_set_1\")",
                    "ScheduleManager.createWeeklyDetail()",
                    "WeeklyScheduleDetail.setScheduleDays(31)",
                    "ScheduleDetail.setStartTime({hour=20, minute=30, second=0})",
                    "ScheduleDetail.setEndTime({hour=30, minute=0, second=0})",
                    "ScheduleDetail.setHourlyFrequency(0)",
                    "ScheduleDetail.setTasks(1)",
                    "Schedule.getDetails()",
                    "Schedule.addDetail(ScheduleDetail(weekly))",
                    "Schedule.setUsingNetworkDetection(false)",
                    "BackupSet.setSchedule(Schedule(schedule_for_set_1))",
                    "BackupSet.setActive(true)",
                    "ClientConnection.getConfigurationManager()",
                    "ClientConfiguration.setAdvancedConfigNumber(\"ScheduleMiss\", 4)"}));
    QCOMPARE(scheduleOf(documents).name, std::string("schedule_for_set_1"));
    QCOMPARE(scheduleOf(mail).name, before.name);
    QCOMPARE(scheduleOf(mail).details.size(), before.details.size());
}

void SchedulePageWritingTest::theOwnScheduleIsRewritten() {
    give(music, "schedule_for_set_8",
         {{ScheduleDetailType::Monthly, 5, {1, 0, 0}, {}, 0, 3},
          {ScheduleDetailType(0), 5, {1, 0, 0}, {}, 0, 3}});
    Page page;
    const Set set = openSet(music);
    page->apply(set);
    QCOMPARE(
        takeCalls(),
        (Calls{"BackupSet.getID()", "BackupSet.getSchedule()",
               "ClientConnection.getScheduleManager()", "Schedule.getName()",
               "ScheduleManager.createWeeklyDetail()", "WeeklyScheduleDetail.setScheduleDays(31)",
               "ScheduleDetail.setStartTime({hour=20, minute=30, second=0})",
               "ScheduleDetail.setEndTime({hour=30, minute=0, second=0})",
               "ScheduleDetail.setHourlyFrequency(0)", "ScheduleDetail.setTasks(1)",
               "Schedule.getDetails()", "Schedule.removeDetail(ScheduleDetail(monthly))",
               "Schedule.removeDetail(ScheduleDetail(other))",
               "Schedule.addDetail(ScheduleDetail(weekly))",
               "Schedule.setUsingNetworkDetection(false)", "BackupSet.setActive(true)",
               "ClientConnection.getConfigurationManager()",
               "ClientConfiguration.setAdvancedConfigNumber(\"ScheduleMiss\", 4)"}));
    QCOMPARE(scheduleOf(music).details.size(), std::size_t{1});
}

void SchedulePageWritingTest::anOwnScheduleThatTheSetLostIsTakenAgain() {
    give(music, "schedule_for_set_8", {});
    takeSchedule(music);
    const Calls before = scheduleNames();
    Page page;
    const Set set = openSet(music);
    page->apply(set);
    QCOMPARE(scheduleNames(), before);
    QCOMPARE(scheduleOf(music).name, std::string("schedule_for_set_8"));
    const Calls calls = takeCalls();
    QCOMPARE(Calls(calls.begin(), calls.begin() + 8),
             (Calls{"BackupSet.getID()", "BackupSet.getSchedule()",
                    "ClientConnection.getScheduleManager()", "ScheduleManager.definedSchedules()",
                    "Schedule.getName()", "Schedule.getName()", "Schedule.getName()",
                    "Schedule.getName()"}));
}

void SchedulePageWritingTest::aMonthlyScheduleIsWritten() {
    Page page;
    page.radio("radioMonthly").click();
    page.spin("spinDayOfMonth").setValue(28);
    const Set set = openSet(music);
    page->apply(set);
    const Calls calls = takeCalls();
    QCOMPARE(
        Calls(calls.begin() + 7, calls.begin() + 12),
        (Calls{"ScheduleManager.createSchedule()", "Schedule.setName(\"schedule_for_set_8\")",
               "ScheduleManager.createMonthlyDetail()", "MonthlyScheduleDetail.setScheduleDay(28)",
               "ScheduleDetail.setStartTime({hour=20, minute=30, second=0})"}));
    const Detail detail = *scheduleOf(music).details.at(0);
    QVERIFY(detail.type == ScheduleDetailType::Monthly);
    QCOMPARE(detail.days, 28);
}

void SchedulePageWritingTest::theDaysAreAMaskFromMonday() {
    Page page;
    for (const char* day :
         {"checkMonday", "checkTuesday", "checkWednesday", "checkThursday", "checkFriday"})
        page.box(day).click();
    int mask = 1;
    for (const char* day : {"checkMonday", "checkTuesday", "checkWednesday", "checkThursday",
                            "checkFriday", "checkSaturday", "checkSunday"}) {
        page.box(day).click();
        QCOMPARE(written(page).days, mask);
        page.box(day).click();
        mask *= 2;
    }
    QCOMPARE(mask, 128);
}

void SchedulePageWritingTest::aStopOnTheNextDayIsHour30() {
    Page page;
    page.time("timeStop").setTime(QTime(6, 0));
    page.stopDay().setCurrentIndex(1);
    const Detail detail = written(page);
    QCOMPARE(detail.end->hour, 30);
    QCOMPARE(detail.end->minute, 0);
}

void SchedulePageWritingTest::theLatestStopIsHour167() {
    Page page;
    page.time("timeStop").setTime(QTime(23, 59));
    page.stopDay().setCurrentIndex(6);
    const Detail detail = written(page);
    QCOMPARE(detail.end->hour, 167);
    QCOMPARE(detail.end->minute, 59);
}

void SchedulePageWritingTest::withoutAStopThereIsNoEnd() {
    Page page;
    page.box("checkStop").click();
    const Set set = openSet(music);
    page->apply(set);
    const Calls calls = takeCalls();
    QCOMPARE(std::count(calls.begin(), calls.end(), "ScheduleDetail.setNoEndTime()"), 1);
    QVERIFY(!scheduleOf(music).details.at(0)->end.has_value());
}

void SchedulePageWritingTest::anHourlyScheduleIsWritten() {
    Page page;
    page.box("checkOccurEvery").click();
    page.spin("spinOccurEvery").setValue(24);
    const Detail detail = written(page);
    QCOMPARE(detail.hourlyFrequency, 24);
    QCOMPARE(detail.end->hour, 23);
    QCOMPARE(detail.end->minute, 59);
}

void SchedulePageWritingTest::theCloudConnectionIsWritten() {
    Page page;
    page.box("checkCloudConnection").click();
    const Set set = openSet(music);
    page->apply(set);
    const Calls calls = takeCalls();
    QCOMPARE(Calls(calls.end() - 7, calls.end() - 3),
             (Calls{"Schedule.addDetail(ScheduleDetail(weekly))",
                    "Schedule.setUsingNetworkDetection(true)", "Schedule.setBackupCPUThrottle(100)",
                    "BackupSet.setSchedule(Schedule(schedule_for_set_8))"}));
}

void SchedulePageWritingTest::leavingTheOwnScheduleRemovesIt() {
    give(music, "schedule_for_set_8", {{ScheduleDetailType::Weekly, 1, {1, 0, 0}, {}, 0, 1}});
    Page page;
    page.radio("radioNotScheduled").click();
    const Set set = openSet(music);
    page->apply(set);
    Calls expected{"BackupSet.getID()",
                   "BackupSet.getSchedule()",
                   "ClientConnection.getScheduleManager()",
                   "Schedule.getName()",
                   "BackupSet.setSchedule(null)",
                   "ScheduleManager.removeSchedule(Schedule(schedule_for_set_8))"};
    expected.insert(expected.end(), lastCalls.begin(), lastCalls.end());
    QCOMPARE(takeCalls(), expected);
    QCOMPARE(scheduleNames(), (Calls{"Every evening", "First of the month", "On start-up"}));
}

void SchedulePageWritingTest::leavingASharedScheduleDetachesIt() {
    Page page;
    page.radio("radioNotScheduled").click();
    const Set set = openSet(documents);
    page->apply(set);
    Calls expected{"BackupSet.getID()", "BackupSet.getSchedule()",
                   "ClientConnection.getScheduleManager()", "Schedule.getName()",
                   "BackupSet.setSchedule(null)"};
    expected.insert(expected.end(), lastCalls.begin(), lastCalls.end());
    QCOMPARE(takeCalls(), expected);
    QCOMPARE(scheduleNames(), (Calls{"Every evening", "First of the month", "On start-up"}));
    QCOMPARE(scheduleOf(mail).name, std::string("Every evening"));
}

void SchedulePageWritingTest::stayingUnscheduledWritesNoSchedule() {
    Page page;
    page.radio("radioNotScheduled").click();
    const Set set = openSet(music);
    page->apply(set);
    Calls expected{"BackupSet.getID()", "BackupSet.getSchedule()",
                   "ClientConnection.getScheduleManager()"};
    expected.insert(expected.end(), lastCalls.begin(), lastCalls.end());
    QCOMPARE(takeCalls(), expected);
}

void SchedulePageWritingTest::aNameInOtherCaseIsAnotherSchedule() {
    give(music, "Schedule_for_set_8", {});
    Page page;
    const Set set = openSet(music);
    page->apply(set);
    QCOMPARE(scheduleNames(), (Calls{"Every evening", "First of the month", "On start-up",
                                     "Schedule_for_set_8", "schedule_for_set_8"}));
}

void SchedulePageWritingTest::theMissedScheduleIsWrittenWhileItIsDisabled() {
    Page page;
    page.spin("spinMissedSchedule").setValue(16);
    page.box("checkOccurEvery").click();
    QVERIFY(!page.spin("spinMissedSchedule").isEnabled());
    const Set set = openSet(music);
    page->apply(set);
    QCOMPARE(takeCalls().back(),
             std::string("ClientConfiguration.setAdvancedConfigNumber(\"ScheduleMiss\", 16)"));
}

void SchedulePageWritingTest::aSetThatWasReadIsWrittenAsItWas() {
    give(music, "schedule_for_set_8",
         {{ScheduleDetailType::Weekly, 96, {3, 7, 0}, {{100, 5, 0}}, 0, 1}});
    change(music, [](simulator::BackupSetState& set, simulator::World& world) {
        world.schedules.find(set.info.schedule_id)->usingNetworkDetection = true;
    });
    Page page;
    const Set set = openSet(music);
    page->load(set);
    page->apply(set);
    const Detail detail = *scheduleOf(music).details.at(0);
    QCOMPARE(detail.days, 96);
    QCOMPARE(detail.start.hour, 3);
    QCOMPARE(detail.start.minute, 7);
    QCOMPARE(detail.end->hour, 100);
    QCOMPARE(detail.end->minute, 5);
    QCOMPARE(detail.hourlyFrequency, 0);
    QVERIFY(scheduleOf(music).usingNetworkDetection);
}

void SchedulePageWritingTest::aFaultLeavesWhatWasDone() {
    give(music, "schedule_for_set_8", {{ScheduleDetailType::Weekly, 1, {1, 0, 0}, {}, 0, 1}});
    Page page;
    const Set set = openSet(music);
    agent().inject("addDetail", simulator::Fault{"No room."});
    QCOMPARE(errorOf([&] { page->apply(set); }), QStringLiteral("No room."));
    QCOMPARE(takeCalls().back(), std::string("Schedule.addDetail(ScheduleDetail(weekly))"));
    QCOMPARE(scheduleOf(music).details.size(), std::size_t{0});
}

QTEST_MAIN(SchedulePageWritingTest)
#include "schedule_page_writing_test.moc"
