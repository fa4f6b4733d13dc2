// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <QModelIndex>
#include <QString>
#include <QStringList>

#include "tests/support/gui_tree.h"
#include "tests/support/gui_wizard.h"

class QListView;
class QTreeView;

namespace simulator {
class World;
}

/// User steps in the restore wizard, on the agent's fourth set.
namespace gui {

inline constexpr int restoredRow = 3;
inline constexpr std::int32_t restoredId = 4;
inline constexpr std::int32_t firstBackup = 1'700'000'000;
inline constexpr std::int32_t middleBackup = 1'730'000'000;
inline constexpr std::int32_t lastBackup = 1'760'000'000;

QString q(const char* text);

/// Gives the set these files, each with three generations.
void storeFiles(simulator::World& world, const std::vector<std::string>& paths);
/// Two drives with a few files.
void storeFiles(simulator::World& world);

using support::rowAt;

QTreeView& treeOf(QWidget& page);
QListView& listOf(QWidget& page);
QStringList filesIn(QWidget& page);
/// The row of a file in the list; invalid if it isn't shown.
QModelIndex fileNamed(QWidget& page, const char* name);
int checkStateOf(QWidget& page, const char* file);
void check(QWidget& page, const char* path);

/// The user's choices on the pages. `reason` is a row of its list.
struct RestoreWishes {
    std::vector<const char*> checked{};
    const char* location = "radioOriginal";
    int reason = 1;
    const char* directory = nullptr; ///< null keeps the directory offered by the page
};

/// Makes the choices on each page. `name` receives the name of the directory created by the
/// restore.
support::AtPage wishing(const RestoreWishes& wishes, QString* name = nullptr);

/// The calls of an agent in the form of `restore_wizard_calls.h`.
std::vector<std::string> restoreCallsOf(const simulator::Simulator& agent, const QString& name);

} // namespace gui
