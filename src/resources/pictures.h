// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace resources {

/// Registers the pictures with Qt's resource system, and icons that follow the palette. A
/// linker drops unreferenced resources of a static library; each program and test that shows
/// pictures must call this once, before its first window.
void initPictures();

} // namespace resources
