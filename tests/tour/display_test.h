// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>
#include <QTest>

#include "app/start_up.h"
#include "resources/pictures.h"
#include "tests/support/gui_palettes.h"

/// For tests of the tour on displays of their own.
namespace tour {

class Album;

/// Takes the whole catalogue. The running test fails if a screen is missing, and for each defect
/// that isn't the same on every display.
void checkAll(Album& album);

/// The main function of a test: starts Qt as the program does, on this platform of Qt's, with the
/// palette of TARN_LOOK and without the desktop's D-Bus session.
template <class Test>
int runTest(const char* platform, int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", platform);
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    app::prepareToolkit();
    QApplication application(argc, argv);
    app::adjustToolkit(application);
    support::applyLook();
    resources::initPictures();
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace tour
