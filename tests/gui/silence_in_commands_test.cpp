// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Silence during the commands of the main window.
#include <QTest>

#include "resources/pictures.h"
#include "tests/gui/silence.h"

class SilenceInCommandsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void atEachCall_data();
    void atEachCall();
};

void SilenceInCommandsTest::atEachCall_data() {
    QTest::addColumn<gui::Flow>("flow");
    for (const char* name :
         {"OnDisconnect", "OnBackupNow", "OnSync", "OnStopActivity", "ShowEventLog",
          "OnNewBackupSet", "on_btnItems_clicked", "on_btnSchedule_clicked",
          "on_btnRetention_clicked", "OnRestore", "OnDelete", "on_actionAdmin_triggered",
          "on_actionRegister_triggered", "on_actionRegistration_Info_triggered",
          "on_actionLDAP_Account_triggered", "on_actionTFASettings_triggered",
          "on_action_About_triggered", "on_action_Recovery_triggered"})
        QTest::newRow(name) << gui::slot(name);
}

void SilenceInCommandsTest::atEachCall() {
    QFETCH(gui::Flow, flow);
    gui::disconnectAtEachCall(flow);
}

QTEST_MAIN(SilenceInCommandsTest)
#include "silence_in_commands_test.moc"
