// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// Main function of the benchmarks that show widgets: on an offscreen display, with the program's
// pictures.

#include <QApplication>

#include <benchmark/benchmark.h>

#include "resources/pictures.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    resources::initPictures();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
