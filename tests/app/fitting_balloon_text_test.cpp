// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "app/tray_icon.h"

using app::fittingBalloonText;

TEST(FittingBalloonText, LeavesATextThatFits) {
    EXPECT_EQ(fittingBalloonText(QStringLiteral("one\ntwo\n"), 8), QStringLiteral("one\ntwo\n"));
    EXPECT_EQ(fittingBalloonText(QString(), 8), QString());
}

TEST(FittingBalloonText, KeepsWholeLines) {
    EXPECT_EQ(fittingBalloonText(QStringLiteral("one\ntwo\nthree\n"), 13),
              QStringLiteral("one\ntwo\n\u2026"));
    EXPECT_EQ(fittingBalloonText(QStringLiteral("one\ntwo\nthree\n"), 9),
              QStringLiteral("one\ntwo\n\u2026"));
    EXPECT_EQ(fittingBalloonText(QStringLiteral("one\ntwo\nthree\n"), 8),
              QStringLiteral("one\n\u2026"));
}

TEST(FittingBalloonText, CutsALineThatIsTooLong) {
    EXPECT_EQ(fittingBalloonText(QStringLiteral("Started - Backup\n"), 8),
              QStringLiteral("Started\u2026"));
}

TEST(FittingBalloonText, KeepsACharacterOfTwoUnitsWhole) {
    EXPECT_EQ(fittingBalloonText(QStringLiteral("ab\U0001F4BEcdef"), 5),
              QStringLiteral("ab\U0001F4BE\u2026"));
    EXPECT_EQ(fittingBalloonText(QStringLiteral("ab\U0001F4BEcdef"), 4),
              QStringLiteral("ab\u2026"));
}
