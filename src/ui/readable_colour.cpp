// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/readable_colour.h"

#include <algorithm>
#include <cmath>

namespace ui {

namespace {

constexpr int steps = 20;

double linear(double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor& one, const QColor& other, double share) {
    return QColor::fromRgbF(one.redF() + (other.redF() - one.redF()) * share,
                            one.greenF() + (other.greenF() - one.greenF()) * share,
                            one.blueF() + (other.blueF() - one.blueF()) * share);
}

} // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

bool isDark(const QPalette& palette) {
    return luminance(palette.color(QPalette::Active, QPalette::WindowText)) >
           luminance(palette.color(QPalette::Active, QPalette::Window));
}

QColor readable(const QColor& wanted, const QPalette& palette, QPalette::ColorRole background) {
    if (!isDark(palette))
        return wanted;
    const auto contrastThere = [&](const QColor& colour) {
        const double there = contrast(colour, palette.color(QPalette::Active, background));
        return background != QPalette::Base
                   ? there
                   : std::min(there, contrast(colour, palette.color(QPalette::Active,
                                                                    QPalette::AlternateBase)));
    };
    const QColor end = contrastThere(Qt::white) > contrastThere(Qt::black) ? Qt::white : Qt::black;
    QColor colour = wanted;
    for (int step = 1; step <= steps && contrastThere(colour) < readableContrast; ++step)
        colour = mixed(wanted, end, double(step) / steps);
    return colour;
}

} // namespace ui
