// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QTableView;

namespace insight {

/// Makes Ctrl+C in the table copy its selected rows, as text and as an HTML table.
void copyRows(QTableView& table);

} // namespace insight
