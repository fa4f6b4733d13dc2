// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/item_pixmap.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPixmapCache>

#include "ui/readable_colour.h"
#include "ui/shared_icon.h"

namespace models {

namespace {

using hessiancln::SelectableItemType;

QString resourceOf(SelectableItemType type) {
    switch (type) {
    case SelectableItemType::Drive:
        return QStringLiteral(":/tree/hdd");
    case SelectableItemType::Folder:
    case SelectableItemType::OtherFolder:
        return QStringLiteral(":/tree/folder");
    case SelectableItemType::File:
        return QStringLiteral(":/tree/file");
    case SelectableItemType::Database:
        return QStringLiteral(":/tree/db");
    }
    return QStringLiteral(":/tree/unknown");
}

QPixmap compose(const QPixmap& base, const QPixmap& sign) {
    QImage image(base.size(), QImage::Format_ARGB32);
    image.setDevicePixelRatio(base.devicePixelRatio());
    image.fill(Qt::transparent);
    const QSize corner = sizeOnScreen(base) - sizeOnScreen(sign);
    QPainter painter(&image);
    painter.drawPixmap(0, 0, base);
    painter.drawPixmap(corner.width(), corner.height(), sign);
    painter.end();
    return QPixmap::fromImage(image);
}

} // namespace

QSize sizeOnScreen(const QPixmap& pixmap) {
    return (QSizeF(pixmap.size()) / pixmap.devicePixelRatio()).toSize();
}

QPixmap itemPixmap(SelectableItemType type, bool noAccess) {
    const QString resource = resourceOf(type);
    const QPixmap base = ui::sharedPixmap(resource);
    if (!noAccess || base.isNull())
        return base;
    const QPixmap sign = ui::sharedPixmap(QStringLiteral(":/tree/no_access"));
    QString key = QStringLiteral("NO_ACCESS") + resource;
    // The pictures follow the palette.
    if (ui::isDark(QGuiApplication::palette()))
        key += QStringLiteral(" on dark");
    QPixmap composed;
    if (!QPixmapCache::find(key, &composed)) {
        composed = compose(base, sign);
        QPixmapCache::insert(key, composed);
    }
    return composed;
}

} // namespace models
