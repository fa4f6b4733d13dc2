// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/backup_set_item.h"

#include "api/remote_call.h"

namespace hessiancln {

std::string BackupSetItem::getFolder() {
    return call<std::string>("getFolder");
}

BackupSetItemType BackupSetItem::getType() {
    return call<BackupSetItemType>("getType");
}

std::string BackupSetRegexExclusion::getExpression() {
    return call<std::string>("getExpression");
}

bool BackupSetRegexExclusion::getInclusion() {
    return call<bool>("getInclusion");
}

void BackupSetRegexExclusion::setInclusion(bool value) {
    call<void>("setInclusion", value);
}

void BackupSetRegexExclusion::setNegate(bool value) {
    call<void>("setNegate", value);
}

void BackupSetRegexExclusion::setCaseSensitive(bool value) {
    call<void>("setCaseSensitive", value);
}

void BackupSetRegexExclusion::setMatchDirectories(bool value) {
    call<void>("setMatchDirectories", value);
}

} // namespace hessiancln
