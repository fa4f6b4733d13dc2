// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

/// What the user can do in the main window, computed in one place from the known facts.
namespace app {

/// The facts about the selected set are false if no set is selected.
struct EnableInputs {
    bool connected = false;
    bool activitySelected = false;
    bool setSelected = false;
    bool setInSync = false;
    bool setHasItems = false;
    bool setCreatedByPolicy = false;
    bool activityRunsOnSet = false;
    bool setHasBackedUpData = false;
    bool centrallyManaged = false;
    bool twoFactorEnabled = false;
};

/// Named after the widgets and actions of the main window.
struct EnableState {
    bool menuBackupSet = false;
    bool menuConfiguration = false;
    bool actionAdmin = false;
    bool actionLogout = false;
    bool buttonEventLog = false;
    bool dateTimeFrom = false;
    bool dateTimeTo = false;
    bool actionLogin = false;
    bool actionNewBackupSet = false;
    bool actionBackupNow = false;
    bool actionRestore = false;
    bool actionDeleteFromOnline = false;
    bool actionSynchronize = false;
    bool buttonStop = false;
    bool pageProperties = false;
    bool btnItems = false;
    bool btnSchedule = false;
    bool btnRetention = false;
    bool actionTFASettings = false;

    bool operator==(const EnableState&) const = default;
};

EnableState enableState(const EnableInputs& in);

} // namespace app
