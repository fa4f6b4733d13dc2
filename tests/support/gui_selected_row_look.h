// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractItemView>
#include <QImage>
#include <QPixmap>
#include <QStyle>

/// The number of pixels in a selected row's picture area that are lighter than the row.
inline int lightPointsOfPicture(QAbstractItemView& view, const QModelIndex& row) {
    const int width = view.style()->pixelMetric(QStyle::PM_SmallIconSize);
    QRect place = view.visualRect(row);
    place.setWidth(width);
    const QImage look = view.viewport()->grab(place).toImage();
    const int ground = view.palette().color(QPalette::Highlight).lightness();
    int light = 0;
    for (int x = 0; x < look.width(); ++x)
        for (int y = 0; y < look.height(); ++y)
            light += look.pixelColor(x, y).lightness() > ground + 50 ? 1 : 0;
    return light;
}
