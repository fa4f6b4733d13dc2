// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace resources {

/// Makes the pictures known to Qt's resource system. A linker drops the resources of a static
/// library unless somebody asks for them; each program and test that shows pictures does so
/// once, before its first window.
void initPictures();

} // namespace resources
