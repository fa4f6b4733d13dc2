// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

#include "ui/grey_overlay_pixmap.h"

class GreyOverlayPixmapTest : public QObject {
    Q_OBJECT
private slots:
    void init() {
        directory_ = std::make_unique<QTemporaryDir>();
        QVERIFY(directory_->isValid());
    }

    void theBaseIsGreyAndKeepsItsAlpha();
    void theOverlayStandsInTheLowerRightCorner();
    void eachPairIsComposedOnce();

private:
    QString saved(const char* name, const QImage& image) {
        const QString path = directory_->filePath(QString::fromLatin1(name));
        if (!image.save(path, "PNG"))
            qFatal("No picture");
        return path;
    }
    static QImage plain(QSize size, QRgb colour) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(colour);
        return image;
    }

    std::unique_ptr<QTemporaryDir> directory_;
};

void GreyOverlayPixmapTest::theBaseIsGreyAndKeepsItsAlpha() {
    QImage base(4, 1, QImage::Format_ARGB32);
    base.setPixel(0, 0, qRgba(255, 0, 0, 255)); // 255 * 11 / 32 = 87
    base.setPixel(1, 0, qRgba(0, 255, 0, 255)); // 255 * 16 / 32 = 127
    base.setPixel(2, 0, qRgba(0, 0, 255, 255)); // 255 * 5 / 32 = 39
    base.setPixel(3, 0, qRgba(255, 255, 255, 0));
    const QString name = saved("base.png", base);
    const QImage grey =
        ui::greyOverlayPixmap(name, QString()).toImage().convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(grey.pixel(0, 0), qRgba(87, 87, 87, 255));
    QCOMPARE(grey.pixel(1, 0), qRgba(127, 127, 127, 255));
    QCOMPARE(grey.pixel(2, 0), qRgba(39, 39, 39, 255));
    QCOMPARE(qAlpha(grey.pixel(3, 0)), 0);
}

void GreyOverlayPixmapTest::theOverlayStandsInTheLowerRightCorner() {
    const QString base = saved("base.png", plain({10, 8}, qRgb(255, 255, 255)));
    const QString overlay = saved("overlay.png", plain({3, 2}, qRgb(200, 0, 0)));
    const QImage composed = ui::greyOverlayPixmap(base, overlay).toImage();
    QCOMPARE(composed.size(), QSize(10, 8));
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 10; ++x)
            QCOMPARE(composed.pixel(x, y),
                     x >= 7 && y >= 6 ? qRgb(200, 0, 0) : qRgb(255, 255, 255));
}

void GreyOverlayPixmapTest::eachPairIsComposedOnce() {
    const QString base = saved("base.png", plain({10, 8}, qRgb(255, 255, 255)));
    const QString one = saved("one.png", plain({3, 2}, qRgb(200, 0, 0)));
    const QString other = saved("other.png", plain({3, 2}, qRgb(0, 200, 0)));
    const qint64 key = ui::greyOverlayPixmap(base, one).cacheKey();
    QCOMPARE(ui::greyOverlayPixmap(base, one).cacheKey(), key);
    QVERIFY(ui::greyOverlayPixmap(base, other).cacheKey() != key);
}

QTEST_MAIN(GreyOverlayPixmapTest)
#include "grey_overlay_pixmap_test.moc"
