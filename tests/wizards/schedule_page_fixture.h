// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTimeEdit>

#include "tests/support/default_start.h"
#include "tests/wizards/page_fixture.h"
#include "wizards/schedule_select_page.h"

/// The page, with access to its widgets by name.
class ShownSchedulePage : public ShownPage<ScheduleSelectPage> {
public:
    QRadioButton& radio(const char* name) { return child<QRadioButton>(name); }
    QCheckBox& box(const char* name) { return child<QCheckBox>(name); }
    QSpinBox& spin(const char* name) { return child<QSpinBox>(name); }
    QTimeEdit& time(const char* name) { return child<QTimeEdit>(name); }
    QComboBox& stopDay() { return child<QComboBox>("comboStopInDays"); }
    QWidget& widget(const char* name) { return child<QWidget>(name); }

    QString checkedType() {
        for (const char* name : {"radioNotScheduled", "radioDaily", "radioMonthly"})
            if (radio(name).isChecked())
                return QString::fromLatin1(name);
        return {};
    }
    QString shownDays() {
        auto& stack = child<QStackedWidget>("scheduleDaysStack");
        return stack.isVisible() ? stack.currentWidget()->objectName() : QString();
    }
    /// The checked days, as the first two letters of each.
    QString days() {
        QString text;
        for (const char* name :
             {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"})
            if (box((std::string("check") + name).c_str()).isChecked())
                text += QString::fromLatin1(name).left(2);
        return text;
    }
};

/// Adds the agent's schedules to what all pages need.
class SchedulePageFixture : public PageFixture {
public:
    using Detail = simulator::ScheduleDetailState;
    using Schedule = simulator::ScheduleState;

    void start() {
        PageFixture::start();
        agent().withWorld(support::beginSchedulesAtHalfPastEight);
    }

    /// Gives the set a schedule with that name.
    void give(int set, const std::string& scheduleName, const std::vector<Detail>& details) {
        change(set, [&](simulator::BackupSetState& state, simulator::World& world) {
            Schedule schedule;
            schedule.name = scheduleName;
            for (const Detail& detail : details)
                schedule.details.push_back(std::make_shared<Detail>(detail));
            state.info.schedule_id = world.schedules.add(std::move(schedule))->id;
        });
    }
    void takeSchedule(int set) {
        change(set, [](simulator::BackupSetState& state, simulator::World&) {
            state.info.schedule_id = simulator::noSchedule;
        });
    }
    /// An empty schedule if the set has none.
    Schedule scheduleOf(int set) {
        Schedule schedule;
        change(set, [&](simulator::BackupSetState& state, simulator::World& world) {
            if (const auto found = world.schedules.find(state.info.schedule_id))
                schedule = *found;
        });
        return schedule;
    }
    Calls scheduleNames() {
        Calls names;
        agent().withWorld([&](simulator::World& world) {
            for (const auto& schedule : world.schedules.all())
                names.push_back(schedule->name);
        });
        return names;
    }
};
