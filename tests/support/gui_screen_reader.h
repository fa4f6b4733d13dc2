// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

namespace support {

/// A screen reader, connected for the lifetime of this object. Like desktop screen readers, it
/// inspects each widget that emits an event. It records the announced texts. Only one may exist at
/// a time.
class ScreenReader {
public:
    ScreenReader();
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;
    ~ScreenReader();

    /// What was announced as typed, removed or replaced, as a field's value, or as an alert.
    const QStringList& heard() const;
    void forget();
};

} // namespace support
