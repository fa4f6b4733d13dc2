// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "ui/readable_colour.h"

namespace {

QPalette paletteOf(const QColor& window, const QColor& text) {
    QPalette palette(window);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, window);
    palette.setColor(QPalette::AlternateBase, window.lighter(120));
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Highlight, "#c0e0ff");
    return palette;
}

const QPalette light = paletteOf(Qt::white, Qt::black);
const QPalette dark = paletteOf("#2a2e32", "#fcfcfc");

TEST(ReadableColour, ContrastIsThatOfWcag) {
    EXPECT_NEAR(ui::contrast(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(ui::contrast(Qt::white, Qt::black), 21, 1e-9);
    EXPECT_NEAR(ui::contrast(Qt::red, Qt::red), 1, 1e-9);
    // The example of the grey that just passes on white.
    EXPECT_NEAR(ui::contrast("#767676", Qt::white), 4.54, 0.005);
    EXPECT_NEAR(ui::contrast(Qt::red, Qt::white), 3.998, 0.001);
}

TEST(ReadableColour, APaletteIsDarkIfItsTextIsLighter) {
    EXPECT_FALSE(ui::isDark(light));
    EXPECT_TRUE(ui::isDark(dark));
}

TEST(ReadableColour, IsTheWantedOneOnALightPalette) {
    EXPECT_EQ(ui::readable(Qt::red, light), QColor(Qt::red));
    EXPECT_EQ(ui::readable(Qt::darkYellow, light), QColor(Qt::darkYellow));
}

TEST(ReadableColour, IsLighterOnDarkAndDarkerOnALightSelection) {
    for (const QColor& wanted : {QColor(Qt::red), QColor(Qt::darkYellow)}) {
        const QColor onBase = ui::readable(wanted, dark);
        EXPECT_GE(ui::contrast(onBase, dark.color(QPalette::Base)), 4.5);
        EXPECT_GE(ui::contrast(onBase, dark.color(QPalette::AlternateBase)), 4.5);
        EXPECT_NEAR(onBase.hsvHueF(), wanted.hsvHueF(), 0.01);
        const QColor onHighlight = ui::readable(wanted, dark, QPalette::Highlight);
        EXPECT_GE(ui::contrast(onHighlight, dark.color(QPalette::Highlight)), 4.5);
        EXPECT_LE(onHighlight.lightnessF(), wanted.lightnessF());
    }
}

TEST(ReadableColour, IsUnchangedWhereItIsReadable) {
    EXPECT_EQ(ui::readable("#ffaaaa", dark), QColor("#ffaaaa"));
}

} // namespace
