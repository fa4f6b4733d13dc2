// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QTreeView;

namespace models {

/// Makes the asterisk key expand the current row of a view, for the lifetime of the view. By
/// default a view expands everything below the row, and so would fetch a whole disk.
void expandOneLevelByAsterisk(QTreeView& view);

} // namespace models
