// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/tour/display_test.h"

#include "tests/tour/album.h"
#include "tests/tour/stories.h"

void tour::checkAll(Album& album) {
    takeAll(album);
    QCOMPARE(album.missing(), QStringList());
    for (const QString& defect : album.defects())
        // Mnemonics are the same on every display; see the test of the tour.
        if (!defect.contains(QLatin1String(" stands for ")))
            QTest::qFail(qPrintable(defect), __FILE__, __LINE__);
}
