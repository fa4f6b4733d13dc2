// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/size_text.h"

#include <QCoreApplication>

namespace ui {

QString sizeToString(double bytes) {
    constexpr double kilobyte = 1024;
    constexpr double megabyte = kilobyte * 1024;
    constexpr double gigabyte = megabyte * 1024;
    if (bytes < kilobyte)
        return QCoreApplication::translate("sizeToString", "%1 Byte(s)")
            .arg(static_cast<qint64>(bytes));
    if (bytes < megabyte)
        return QCoreApplication::translate("sizeToString", "%1 KB")
            .arg(bytes / kilobyte, 0, 'f', 2);
    if (bytes < gigabyte)
        return QCoreApplication::translate("sizeToString", "%1 MB")
            .arg(bytes / megabyte, 0, 'f', 2);
    return QCoreApplication::translate("sizeToString", "%1 GB").arg(bytes / gigabyte, 0, 'f', 2);
}

} // namespace ui
