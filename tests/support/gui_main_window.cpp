// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/gui_main_window.h"

#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QStatusBar>
#include <QTableView>

#include <boost/thread/thread.hpp>

#include "app/backup_set_view_item.h"
#include "session/text.h"
#include "simulator/world/world.h"
#include "tests/support/gui_modal_driver.h"

namespace support {

namespace {

/// Replaces the wait between heartbeats; only the end of the thread interrupts it.
void sleepWithoutEnd() {
    boost::this_thread::sleep_until(boost::chrono::steady_clock::time_point::max());
}

} // namespace

MainWindowDriver::MainWindowDriver(bool trayAvailable) {
    auto tray = std::make_unique<RecordingTray>(trayAvailable);
    tray_ = tray.get();
    window_ = std::make_unique<SimpleGUIMainWindow>(nullptr, std::move(tray), sleepWithoutEnd);
    window_->show();
    // An inactive window makes more calls: it requests names for its balloons. A display without a
    // window manager has no active window, which is good enough for pictures.
    (void)QTest::qWaitForWindowActive(window_.get(), 2000);
}

MainWindowDriver::~MainWindowDriver() {
    window_.reset();
    resetSession();
}

void MainWindowDriver::logIn(GuiAgent& agent) {
    window_->doLogin(true);
    agent.clearCallLog();
}

void MainWindowDriver::beat() {
    QEvent event(static_cast<QEvent::Type>(window_->heartbeatEventType()));
    QCoreApplication::sendEvent(window_.get(), &event);
}

void MainWindowDriver::postBeat() {
    const auto type = static_cast<QEvent::Type>(window_->heartbeatEventType());
    QCoreApplication::postEvent(window_.get(), new QEvent(type));
}

QTableView& MainWindowDriver::sets() {
    return child<QTableView>(*window_, "backupSetsView");
}

BackupSetViewItem& MainWindowDriver::card(int row) {
    auto* card =
        qobject_cast<BackupSetViewItem*>(sets().indexWidget(sets().model()->index(row, 0)));
    if (!card)
        qFatal("There is no card in row %d", row);
    return *card;
}

QStringList MainWindowDriver::cards() {
    QStringList texts;
    for (int row = 0; row < sets().model()->rowCount(); ++row)
        texts << child<QLabel>(card(row), "labelSetName").text() + QLatin1Char('\n') +
                     child<QLabel>(card(row), "labelAdditionalInfo").text();
    return texts;
}

int MainWindowDriver::selectedRow() {
    const QModelIndexList rows = sets().selectionModel()->selectedRows();
    return rows.size() == 1 ? rows.first().row() : -1;
}

QStringList MainWindowDriver::details() {
    QStringList texts;
    for (const char* name :
         {"valLastBackup", "valFileGens", "valSize", "valItems", "valSchedule", "valRetention"})
        texts << child<QLabel>(*window_, name).text();
    return texts;
}

int MainWindowDriver::rows(const char* table) {
    return child<QTableView>(*window_, table).model()->rowCount();
}

bool MainWindowDriver::isEnabled(const char* action) {
    return child<QAction>(*window_, action).isEnabled();
}

void MainWindowDriver::trigger(const char* action) {
    child<QAction>(*window_, action).trigger();
}

QString MainWindowDriver::status() {
    return window_->statusBar()->currentMessage();
}

QStringList cardsOf(GuiAgent& agent) {
    QStringList texts;
    agent.withWorld([&](simulator::World& world) {
        for (const auto& set : world.sets())
            if (set->info.data_type == hessiancln::BackupDataType::FileSystem)
                texts << session::fromWire(set->info.name + "\nBackup of: " + set->info.computer);
    });
    return texts;
}

std::vector<std::string> methodsOf(const simulator::Simulator& agent) {
    std::vector<std::string> names;
    for (const auto& call : agent.callLog())
        if (call.method != "Release")
            names.push_back(call.method);
    return names;
}

} // namespace support
