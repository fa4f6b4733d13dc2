// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/gui/restore_wizard_steps.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTest>
#include <QTreeView>

#include "simulator/world/world.h"
#include "wizards/restore_directory_destination.h"
#include "wizards/restore_location_page.h"
#include "wizards/restore_select_page.h"

namespace gui {

using support::child;

QString q(const char* text) {
    return QString::fromUtf8(text);
}

void storeFiles(simulator::World& world, const std::vector<std::string>& paths) {
    auto& set = *world.set(restoredId);
    set.sessions = {{firstBackup, firstBackup + 60, 5, 500, 1},
                    {middleBackup, middleBackup + 60, 5, 500, 2},
                    {lastBackup - 60, lastBackup, 5, 500, 3}};
    set.stored = std::make_shared<simulator::StoredData>();
    for (const std::string& path : paths)
        set.stored->addFile(path, {{firstBackup, firstBackup + 60, 10, 8},
                                   {middleBackup, middleBackup + 60, 15, 12},
                                   {lastBackup - 60, lastBackup, 20, 16}});
}

void storeFiles(simulator::World& world) {
    storeFiles(world, {"C:\\docs\\2024\\a.txt", "C:\\docs\\b.txt", "C:\\notes.txt",
                       "C:\\budget.ods", "D:\\x.bin"});
}

QTreeView& treeOf(QWidget& page) {
    return child<QTreeView>(page, "treeSelection");
}

QListView& listOf(QWidget& page) {
    return child<QListView>(page, "listSelection");
}

QStringList filesIn(QWidget& page) {
    return support::namesIn(listOf(page));
}

QModelIndex fileNamed(QWidget& page, const char* name) {
    const QListView& list = listOf(page);
    const int row = filesIn(page).indexOf(q(name));
    return row < 0 ? QModelIndex() : list.model()->index(row, 0, list.rootIndex());
}

int checkStateOf(QWidget& page, const char* file) {
    return fileNamed(page, file).data(Qt::CheckStateRole).toInt();
}

void check(QWidget& page, const char* path) {
    treeOf(page).model()->setData(rowAt(treeOf(page), path), Qt::Checked, Qt::CheckStateRole);
}

support::AtPage wishing(const RestoreWishes& wishes, QString* name) {
    return [wishes, name](QWizardPage& page) {
        if (qobject_cast<RestoreSelectPage*>(&page)) {
            for (const char* path : wishes.checked)
                check(page, path);
        } else if (qobject_cast<RestoreLocationPage*>(&page)) {
            child<QRadioButton>(page, wishes.location).click();
            child<QComboBox>(page, "cmbRestoreReason").setCurrentIndex(wishes.reason);
        } else if (qobject_cast<RestoreDirectoryDestination*>(&page)) {
            if (name)
                *name = page.subTitle().section(q("''"), 1, 1);
            if (wishes.directory)
                child<QLineEdit>(page, "editRestoreTo").setText(q(wishes.directory));
        }
    };
}

std::vector<std::string> restoreCallsOf(const simulator::Simulator& agent, const QString& name) {
    std::vector<std::string> calls = support::steadyCallsOf(agent);
    if (name.isEmpty())
        return calls;
    for (std::string& call : calls)
        call = QString::fromStdString(call).replace(name, q("NAME")).toStdString();
    return calls;
}

} // namespace gui
