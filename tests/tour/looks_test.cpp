// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// At the scale of QT_SCALE_FACTOR, and with the palette of TARN_LOOK.
#include <QApplication>
#include <QTest>

#include "app/set_card_look.h"
#include "tests/support/gui_display.h"
#include "tests/tour/album.h"
#include "tests/tour/display_test.h"

/// Every screen of the program looks as it should on other desktops than the usual one.
class LooksTest : public QObject {
    Q_OBJECT
private slots:
    void aCardHasASharpPicture_data() {
        QTest::addColumn<QString>("overlay");
        QTest::newRow("plain") << QString();
        QTest::newRow("with a sign") << QStringLiteral(":/icons/overlay_sync.png");
    }
    void aCardHasASharpPicture() {
        QFETCH(QString, overlay);
        app::SetCardLook look;
        look.icon = QStringLiteral(":/icons/backup_set_icon.png");
        look.overlay = overlay;
        const QPixmap picture = app::setCardPicture(look);
        QCOMPARE(picture.devicePixelRatio(), qApp->devicePixelRatio());
        QCOMPARE(picture.width(), qRound(48 * qApp->devicePixelRatio()));
    }

    void haveNoDefects() {
        QCOMPARE(qApp->devicePixelRatio(), qEnvironmentVariable("QT_SCALE_FACTOR").toDouble());
        tour::Album album(QStringLiteral("Out of order."));
        tour::checkAll(album);
    }
};

int main(int argc, char** argv) {
    // As large as the usual screen at the largest scale.
    support::Display display;
    if (!display.begin({3200, 2000}))
        qFatal("Xvfb doesn't start");
    return tour::runTest<LooksTest>("xcb", argc, argv);
}

#include "looks_test.moc"
