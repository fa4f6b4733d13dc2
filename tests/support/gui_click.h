// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractButton>
#include <QTest>

namespace support {

/// Clicks where a box reacts: it may be wider than its text.
inline void clickBox(QAbstractButton& box) {
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
}

} // namespace support
