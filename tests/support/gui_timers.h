// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTest>
#include <QTimer>

namespace support {

/// Processes events until a timer that is due now has fired; other timers that are due have fired
/// before.
inline void letTimersFire() {
    bool fired = false;
    QTimer::singleShot(0, [&fired] { fired = true; });
    QTRY_VERIFY(fired);
}

} // namespace support
