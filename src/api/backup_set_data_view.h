// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

#include "api/data_view_records.h"
#include "api/remote_object.h"

namespace hessiancln {

/// The content of a set for one choice of filter values. Ids are valid only within their view.
class BackupSetDataView : public RemoteObject {
public:
    using RemoteObject::RemoteObject;

    /// The children of an item; the top level for -1.
    std::vector<SelectableItem> getSubItems(std::int64_t item);
    /// The stored versions of a file, in no particular order.
    std::vector<file_generations> getItemGenerations(std::int64_t item);
};

} // namespace hessiancln
