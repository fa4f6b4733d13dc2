// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QAction>
#include <QFileDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QWizard>

#include "insight/backup_health_window.h"
#include "insight/find_file_window.h"
#include "tests/tour/photographer.h"
#include "tests/tour/stories.h"
#include "ui/select_row.h"

namespace tour {

namespace {

using simulator::Scenario;

/// Processes events until the condition holds; aborts the program if it never does.
template <class Holds>
void waitUntil(Holds holds) {
    constexpr int patience = 60'000;
    if (!QTest::qWaitFor(holds, patience))
        qFatal("What was waited for didn't come");
}

/// Opens a window of that class with a menu command.
template <class Window>
Window& opened(Photographer& photographer, const char* action) {
    child<QAction>(photographer.window(), action).trigger();
    auto* window = photographer.window().findChild<Window*>();
    if (!window)
        qFatal("%s opens no window", action);
    return *window;
}

BackupHealthWindow& readHealth(Photographer& photographer) {
    auto& health = opened<BackupHealthWindow>(photographer, "actionBackup_Health");
    waitUntil([&] { return !child<QProgressBar>(health, "progressReading").isVisible(); });
    return health;
}

void takeHealth(Album& album) {
    {
        Photographer photographer(album, {.scenario = Scenario::Overdue});
        photographer.logIn();
        BackupHealthWindow& health = readHealth(photographer);
        photographer.take(health, "health");
        health.close();
    }
    Photographer photographer(album, {.scenario = Scenario::Overlapping});
    photographer.logIn();
    BackupHealthWindow& health = readHealth(photographer);
    child<QTabWidget>(health, "tabHealth").setCurrentIndex(1);
    photographer.take(health, "health-runs");
    health.close();
}

void takeSearch(Album& album) {
    Photographer photographer(album, {.scenario = Scenario::Failed});
    photographer.logIn();
    SimpleGUIMainWindow& window = photographer.window();
    child<QTabWidget>(window, "tabWidget").setCurrentIndex(1);
    type(window, "editSearch", "errors");
    photographer.take(window, "log-search");
    photographer.expect<QFileDialog>([&](QFileDialog& dialog) {
        photographer.take(dialog, "log-export");
        // No file can be created there.
        dialog.selectFile(q("/proc/log.csv"));
        static_cast<QDialog&>(dialog).accept();
    });
    photographer.expect("box-export");
    click(window, "buttonExport");
    photographer.end();
}

void takeFind(Album& album) {
    Photographer photographer(album, {.scenario = Scenario::Generations});
    photographer.logIn();
    auto& find = opened<FindFileWindow>(photographer, "actionFind_File");
    type(find, "editName", "*.odt");
    click(find, "buttonFind");
    waitUntil([&] { return !find.isSearching(); });
    ui::selectRow(child<QTableView>(find, "tableFound"), 0);
    photographer.take(find, "find-file");
    photographer.expect<QWizard>([&](QWizard& wizard) {
        next(wizard);
        photographer.take(wizard, "restore-summary");
        wizard.reject();
    });
    click(find, "buttonRestore");
    photographer.end();
    find.close();
}

} // namespace

void takeInsight(Album& album) {
    takeHealth(album);
    takeSearch(album);
    takeFind(album);
}

} // namespace tour
