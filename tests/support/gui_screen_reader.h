// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

namespace support {

/// A screen reader that is connected while it lives: it looks at each widget as soon as that says
/// anything, as the ones of the desktops do, and keeps the texts that it hears. One at a time.
class ScreenReader {
public:
    ScreenReader();
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;
    ~ScreenReader();

    /// What was announced as typed, removed or replaced, or as a field's value.
    const QStringList& heard() const;
    void forget();
};

} // namespace support
