// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace support {

/// Has the system's resolver hang on each name under ".held" for as long as the object lives. All
/// other names are resolved as ever. Waits at its end until the last of the hanging threads has
/// left the resolver.
class HeldNames {
public:
    HeldNames();
    HeldNames(const HeldNames&) = delete;
    HeldNames& operator=(const HeldNames&) = delete;
    ~HeldNames();

    /// Waits until so many threads hang in the resolver.
    bool waitForHeld(int count);
};

} // namespace support
