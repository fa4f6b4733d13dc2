// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/backed_up_selection.h"

#include "models/backed_up_node.h"

namespace models {

std::vector<std::int64_t> selectedIds(BackedUpNode& root) {
    std::vector<std::int64_t> ids;
    walk(root, [&ids](BackedUpNode& node) {
        if (!node.hasId()) {
            node.fetch();
            return true;
        }
        if (node.checkState() == CheckState::Checked)
            ids.push_back(node.item().id);
        return node.checkState() == CheckState::Partly;
    });
    return ids;
}

} // namespace models
