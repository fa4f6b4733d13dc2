// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QListView>
#include <QTreeView>

#include "simulator/world/world.h"
#include "tests/gui/delete_wizard_calls.h"
#include "tests/support/gui_tree.h"
#include "tests/support/gui_wizard.h"

/// User steps in the delete wizard, and the set that it deletes from.
namespace gui {

using support::rowAt;

inline constexpr int setRow = 3;
inline constexpr std::int32_t setId = 4;
inline constexpr std::int32_t firstBackup = 1'700'000'000;
inline constexpr std::int32_t lastBackup = 1'760'000'000;

inline QString q(const char* text) {
    return QString::fromUtf8(text);
}

inline Calls operator+(Calls calls, const Calls& more) {
    calls.insert(calls.end(), more.begin(), more.end());
    return calls;
}

/// Two drives with a few files, and a schedule and a rule used by no other set.
inline void store(simulator::World& world) {
    simulator::ScheduleState schedule;
    schedule.name = "own";
    simulator::RetentionRuleState rule;
    rule.name = "own";
    auto& set = *world.set(setId);
    set.info.schedule_id = world.schedules.add(schedule)->id;
    set.info.retention_rule_id = world.retentionRules.add(rule)->id;
    set.sessions = {{firstBackup, firstBackup + 60, 5, 500, 1},
                    {lastBackup - 60, lastBackup, 5, 500, 2}};
    set.stored = std::make_shared<simulator::StoredData>();
    for (const char* path : {"C:\\docs\\2024\\a.txt", "C:\\docs\\b.txt", "C:\\notes.txt",
                             "C:\\budget.ods", "D:\\x.bin"})
        set.stored->addFile(
            path, {{firstBackup, firstBackup + 60, 10, 8}, {lastBackup - 60, lastBackup, 20, 16}});
}

/// A top-level entry that has no id for the agent, above a folder that has one.
inline void storeGroup(simulator::World& world) {
    auto& stored = *world.set(setId)->stored;
    stored.addFile("Group\\Team\\c.txt", {{firstBackup, firstBackup + 60, 10, 8}});
    stored.addFolder("Group").isGroup = true;
}

inline QTreeView& treeOf(QWidget& page) {
    return support::child<QTreeView>(page, "treeSelection");
}

inline QListView& listOf(QWidget& page) {
    return support::child<QListView>(page, "listSelection");
}

inline void check(QWidget& page, const char* path) {
    treeOf(page).model()->setData(rowAt(treeOf(page), path), Qt::Checked, Qt::CheckStateRole);
}

inline QStringList filesIn(QWidget& page) {
    return support::namesIn(listOf(page));
}

inline void checkAll(QWidget& page) {
    check(page, "C:");
    check(page, "D:");
}

inline void switchOn(QWidget& page, const char* box) {
    support::child<QGroupBox>(page, "groupFilter").setChecked(true);
    support::child<QCheckBox>(page, box).setChecked(true);
}

} // namespace gui
