// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// At the scale of QT_SCALE_FACTOR, and with the palette of TARN_LOOK.
#include <QApplication>
#include <QTest>

#include "app/start_up.h"
#include "resources/pictures.h"
#include "tests/support/gui_display.h"
#include "tests/tour/album.h"
#include "tests/tour/palettes.h"
#include "tests/tour/stories.h"

/// Every screen of the program looks as it should on other desktops than the usual one.
class LooksTest : public QObject {
    Q_OBJECT
private slots:
    void haveNoDefects() {
        QVERIFY(qApp->devicePixelRatio() >= qEnvironmentVariable("QT_SCALE_FACTOR").toDouble());
        tour::Album album(QStringLiteral("Out of order."));
        tour::takeAll(album);
        QCOMPARE(album.missing(), QStringList());
        for (const QString& defect : album.defects())
            // The same as at any other scale; see the test of the tour.
            if (!defect.contains(QLatin1String(" stands for ")))
                QTest::qFail(qPrintable(defect), __FILE__, __LINE__);
    }
};

int main(int argc, char** argv) {
    // As large as the usual screen at the largest scale.
    support::Display display;
    if (!display.begin({3200, 2000}))
        qFatal("Xvfb doesn't start");
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    app::prepareToolkit();
    QApplication application(argc, argv);
    tour::applyLook();
    resources::initPictures();
    LooksTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "looks_test.moc"
