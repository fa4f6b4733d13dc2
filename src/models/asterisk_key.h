// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QTreeView;

namespace models {

/// Has the asterisk key expand the current row of a view, for as long as the view lives. By itself
/// a view expands all that is below the row, and so would fetch a whole disk.
void expandOneLevelByAsterisk(QTreeView& view);

} // namespace models
