// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/backup_set_data_view.h"

#include "api/remote_call.h"

namespace hessiancln {

std::vector<SelectableItem> BackupSetDataView::getSubItems(std::int64_t item) {
    return call<std::vector<SelectableItem>>("getSubItems", item);
}

std::vector<file_generations> BackupSetDataView::getItemGenerations(std::int64_t item) {
    return call<std::vector<file_generations>>("getItemGenerations", item);
}

} // namespace hessiancln
