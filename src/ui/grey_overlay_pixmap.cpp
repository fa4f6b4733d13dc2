// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/grey_overlay_pixmap.h"

#include <map>
#include <tuple>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "ui/readable_colour.h"
#include "ui/shared_icon.h"

namespace ui {

namespace {

/// Of the base and of the overlay, and whether they are for a dark palette.
using Key = std::tuple<QString, QString, bool>;

std::map<Key, QPixmap>& composed() {
    static std::map<Key, QPixmap> composed;
    return composed;
}

void makeGrey(QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = line[x];
            const int grey = (qRed(pixel) * 11 + qGreen(pixel) * 16 + qBlue(pixel) * 5) >> 5;
            line[x] = qRgba(grey, grey, grey, qAlpha(pixel));
        }
    }
}

QPixmap compose(const QPixmap& base, const QPixmap& overlay) {
    QImage image(base.size(), QImage::Format_ARGB32);
    image.setDevicePixelRatio(base.devicePixelRatio());
    image.fill(0);
    QPainter(&image).drawPixmap(0, 0, base);
    makeGrey(image);
    const QSizeF baseSize = QSizeF(base.size()) / base.devicePixelRatio();
    const QSizeF overlaySize = QSizeF(overlay.size()) / overlay.devicePixelRatio();
    QPainter(&image).drawPixmap(
        QPointF(baseSize.width() - overlaySize.width(), baseSize.height() - overlaySize.height()),
        overlay);
    return QPixmap::fromImage(image);
}

} // namespace

QPixmap greyOverlayPixmap(const QString& base, const QString& overlay) {
    const Key key(base, overlay, isDark(QGuiApplication::palette()));
    if (const auto found = composed().find(key); found != composed().end())
        return found->second;
    // Pictures must not outlive the application object.
    if (composed().empty())
        qAddPostRoutine([] { composed().clear(); });
    return composed()
        .emplace(key, compose(sharedPixmap(base), sharedPixmap(overlay)))
        .first->second;
}

} // namespace ui
