// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace platform {

/// Whether the user wants dark windows and the toolkit doesn't provide the colours, so that the
/// program needs a palette of its own. On Windows: whether the user's colour mode for apps is dark,
/// unless a contrast theme is on, whose colours the toolkit uses. Elsewhere false, as the toolkit
/// uses the palette of the desktop.
bool needsDarkPalette();

} // namespace platform
