// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace models {

/// Presents each `CSmallListView` to screen readers with the rows it shows: those below its root,
/// where Qt counts the top level rows of the model. Takes effect once, however often it is called.
void announceShownRows();

} // namespace models
