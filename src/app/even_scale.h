// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QGuiApplication;

namespace app {

/// The factor that is meant by one computed from the size of a screen in whole millimetres, as a
/// display without settings for it is: one that is nearly a multiple of a quarter is that multiple.
double evenScale(double computed);

/// Scales by even factors on every screen of the program. Others blur lines and pictures.
void scaleEvenly(QGuiApplication& application);

} // namespace app
