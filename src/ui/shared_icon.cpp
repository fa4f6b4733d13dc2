// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/shared_icon.h"

#include <QCoreApplication>
#include <QHash>

namespace ui {

namespace {

QHash<QString, QIcon>& icons() {
    static QHash<QString, QIcon> icons;
    return icons;
}

bool isSign(const QString& resource) {
    return resource.startsWith(QLatin1String(":/icons/event_")) ||
           resource.startsWith(QLatin1String(":/icons/health_"));
}

QIcon iconOf(const QString& resource) {
    QIcon icon(resource);
    if (isSign(resource))
        icon.addFile(resource, {}, QIcon::Selected);
    return icon;
}

} // namespace

QIcon sharedIcon(const QString& resource) {
    if (const auto found = icons().constFind(resource); found != icons().constEnd())
        return *found;
    // Pictures must not outlive the application object.
    if (icons().isEmpty())
        qAddPostRoutine([] { icons().clear(); });
    return *icons().insert(resource, iconOf(resource));
}

QPixmap sharedPixmap(const QString& resource) {
    const QIcon icon = sharedIcon(resource);
    const auto sizes = icon.availableSizes();
    return sizes.isEmpty() ? QPixmap() : icon.pixmap(sizes.front());
}

} // namespace ui
