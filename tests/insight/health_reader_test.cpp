// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The calls with which the details of sets are read, and their order.
#include <QtTest>

#include "api/client_connection.h"
#include "insight/health_reader.h"
#include "session/connection.h"
#include "simulator/world/world.h"
#include "tests/insight/session_of_windows.h"

namespace {

using Calls = std::vector<std::string>;
using hessiancln::backup_set_info;
using hessiancln::ScheduleDetailType;
using insight_windows::Session;
using simulator::Scenario;
using simulator::ScheduleDetailState;

/// Makes the schedule of a set consist of these parts.
void schedule(Session& session, const backup_set_info& set,
              const std::vector<ScheduleDetailState>& parts) {
    session.agent.withWorld([&](simulator::World& world) {
        auto& details = world.schedules.find(set.schedule_id)->details;
        details.clear();
        for (const ScheduleDetailState& part : parts)
            details.push_back(std::make_shared<ScheduleDetailState>(part));
    });
}

/// The steps until a set is read: the call of each, or its calls as in "one+other".
Calls readSet(Session& session, insight::HealthReader& reader) {
    Calls steps;
    bool isRead = false;
    while (!isRead && reader.left() > 0) {
        session.agent.clearCallLog();
        isRead = reader.step().has_value();
        std::string step;
        for (const std::string& method : session.methods())
            step += (step.empty() ? "" : "+") + method;
        steps.push_back(step);
    }
    return steps;
}

} // namespace

class HealthReaderTest : public QObject {
    Q_OBJECT
private slots:
    void aScheduleIsReadCallByCall();
    void aSharedScheduleIsReadOnce();
    void aCancelledSetLeavesNoScheduleToTheNext();
};

void HealthReaderTest::aScheduleIsReadCallByCall() {
    Session session(Scenario::Overdue);
    const auto sets = session::getConnection()->backup_sets_info();
    const auto set = std::find_if(sets.begin(), sets.end(), insight::isScheduled);
    QVERIFY(set != sets.end());
    schedule(session, *set,
             {{ScheduleDetailType::Weekly, 127, {20, 0, 0}, {{22, 0, 0}}, 0, 1},
              {ScheduleDetailType::Monthly, 3, {6, 30, 0}, {}, 0, 1}});
    insight::HealthReader reader(session::getConnection);
    reader.add(*set);
    const Calls expected{"getConfigurationManager",
                         "getAdvancedConfigNumber",
                         "backup_set",
                         "getSchedule",
                         "getDetails",
                         "getType",
                         "getStartTime",
                         "hasEndTime",
                         "getEndTime",
                         "getHourlyFrequency",
                         "getTasks",
                         "types",
                         "getScheduleDays",
                         "getType",
                         "getStartTime",
                         "hasEndTime",
                         "getHourlyFrequency",
                         "getTasks",
                         "types",
                         "getScheduleDay",
                         "getLastActivityOfType",
                         "getOverview"};
    QCOMPARE(readSet(session, reader), expected);
    const auto& parts = reader.detailsOf(set->id)->plan->plan.details;
    QCOMPARE(parts.size(), std::size_t{2});
    QVERIFY(parts[0].type == ScheduleDetailType::Weekly);
    QCOMPARE(parts[0].start.hour, 20);
    QCOMPARE(parts[0].end->hour, 22);
    QCOMPARE(parts[0].days, 127);
    QVERIFY(parts[1].type == ScheduleDetailType::Monthly);
    QCOMPARE(parts[1].start.minute, 30);
    QVERIFY(!parts[1].end);
    QCOMPARE(parts[1].days, 3);
}

void HealthReaderTest::aSharedScheduleIsReadOnce() {
    Session session(Scenario::Overdue);
    const auto sets = session::getConnection()->backup_sets_info();
    const auto first = std::find_if(sets.begin(), sets.end(), insight::isScheduled);
    const auto other = std::find_if(first + 1, sets.end(), insight::isScheduled);
    QVERIFY(first != sets.end() && other != sets.end());
    backup_set_info same = *other;
    same.schedule_id = first->schedule_id;
    insight::HealthReader reader(session::getConnection);
    reader.add(*first);
    reader.add(same);
    readSet(session, reader);
    QCOMPARE(readSet(session, reader),
             (Calls{"backup_set", "getLastActivityOfType", "getOverview"}));
    QCOMPARE(reader.detailsOf(same.id)->plan, reader.detailsOf(first->id)->plan);
}

void HealthReaderTest::aCancelledSetLeavesNoScheduleToTheNext() {
    Session session(Scenario::Overdue);
    const auto sets = session::getConnection()->backup_sets_info();
    const auto first = std::find_if(sets.begin(), sets.end(), insight::isScheduled);
    const auto other = std::find_if(first, sets.end(), [&](const auto& set) {
        return insight::isScheduled(set) && set.schedule_id != first->schedule_id;
    });
    QVERIFY(other != sets.end());
    const auto called = [&](const char* method) {
        const auto methods = session.methods();
        return std::find(methods.begin(), methods.end(), method) != methods.end();
    };
    insight::HealthReader reader(session::getConnection);
    reader.add(*first);
    while (!called("getLastActivityOfType"))
        QVERIFY(!reader.step());
    reader.clear();
    session.agent.clearCallLog();
    reader.add(*other);
    while (reader.left() > 0)
        reader.step();
    QVERIFY(called("getSchedule"));
    QVERIFY(reader.detailsOf(other->id)->plan);
    QVERIFY(!reader.detailsOf(first->id));
}

QTEST_MAIN(HealthReaderTest)
#include "health_reader_test.moc"
