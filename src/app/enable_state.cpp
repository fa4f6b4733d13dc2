// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/enable_state.h"

namespace app {

EnableState enableState(const EnableInputs& in) {
    const bool setIsFree = in.connected && in.setSelected && !in.activityRunsOnSet;
    // Under central management, a set created by the policy can only be backed up, any other set
    // can only be deleted.
    const bool mayBackUp = !in.centrallyManaged || in.setCreatedByPolicy;
    const bool mayDelete = !in.centrallyManaged || !in.setCreatedByPolicy;

    EnableState out;
    out.menuBackupSet = in.connected;
    out.menuConfiguration = in.connected;
    out.actionAdmin = in.connected;
    out.actionLogout = in.connected;
    out.buttonEventLog = in.connected;
    out.dateTimeFrom = in.connected;
    out.dateTimeTo = in.connected;
    out.actionLogin = !in.connected;
    out.actionNewBackupSet = in.connected && !in.centrallyManaged;
    out.actionBackupNow = setIsFree && in.setInSync && in.setHasItems && mayBackUp;
    out.actionRestore = setIsFree && in.setInSync && in.setHasBackedUpData;
    out.actionDeleteFromOnline = setIsFree && in.setInSync && mayDelete;
    out.actionSynchronize = setIsFree;
    out.buttonStop = in.connected && in.activitySelected;
    out.pageProperties = in.connected && in.setSelected;
    out.btnItems = !in.centrallyManaged;
    out.btnSchedule = !in.centrallyManaged;
    out.btnRetention = !in.centrallyManaged;
    out.actionTFASettings = in.twoFactorEnabled;
    return out;
}

} // namespace app
