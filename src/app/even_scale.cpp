// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/even_scale.h"

#include <cmath>

#include <private/qhighdpiscaling_p.h>

#include <QGuiApplication>
#include <QScreen>

namespace app {

namespace {

constexpr double step = 0.25;
constexpr double tolerance = 0.05;

/// The factor by which the user scales all Qt programs.
double globalScale() {
    bool isNumber = false;
    const double scale = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(&isNumber);
    return isNumber && scale > 0 ? scale : 1;
}

void scaleEvenly(QScreen& screen) {
    const double computed = QHighDpiScaling::factor(&screen) / globalScale();
    const double even = evenScale(computed);
    if (computed == even)
        return;
    // Qt ignores a factor of 1 unless another factor was set before.
    QHighDpiScaling::setScreenFactor(&screen, 2);
    QHighDpiScaling::setScreenFactor(&screen, even);
}

} // namespace

double evenScale(double computed) {
    const double even = std::round(computed / step) * step;
    return std::abs(computed - even) <= tolerance * even ? even : computed;
}

void scaleEvenly(QGuiApplication& application) {
    for (QScreen* screen : QGuiApplication::screens())
        scaleEvenly(*screen);
    QObject::connect(&application, &QGuiApplication::screenAdded, &application,
                     [](QScreen* screen) { scaleEvenly(*screen); });
}

} // namespace app
