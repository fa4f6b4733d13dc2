// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/branding_resources.h"

#include <QBuffer>
#include <QImageReader>
#include <QPixmap>

#include "ui/zip_reader.h"

namespace ui {

BrandingResources g_branding;

namespace {

constexpr QSize applicationIconSize(64, 64);
constexpr QSize logoSize(280, 50);

/// A small file may declare an image that fills the memory, so its size is checked first.
bool isReasonableImage(QByteArray& bytes) {
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    return reader.canRead() && (!size.isValid() || qint64{size.width()} * size.height() <=
                                                       BrandingResources::mostPixels);
}

/// The image in an entry, stretched to `size`; null without a usable image.
QPixmap picture(const ZipReader& file, const char* entry, QSize size) {
    QByteArray bytes = file.read(entry);
    QPixmap pixmap;
    if (bytes.isEmpty() || !isReasonableImage(bytes) || !pixmap.loadFromData(bytes))
        return {};
    return pixmap.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

void BrandingResources::setDefaults() {
    applicationIcon_ = QIcon();
    applicationIcon_.addFile(QStringLiteral(":/icons/tarn_mobile_icon.png"), {}, QIcon::Normal);
    logoIcon_ = QIcon();
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled})
        logoIcon_.addFile(QStringLiteral(":/icons/norvel_logo.png"), {}, mode);
    strings_ = {{QStringLiteral("DESCRIPTION"), QStringLiteral("Norvel Inc")},
                {QStringLiteral("HOMEPAGEURL"), QStringLiteral(TARN_HOME_PAGE_URL)}};
}

void BrandingResources::load() {
    setDefaults();
    const ZipReader file(QStringLiteral("resources.zip"));
    if (const QPixmap icon = picture(file, "icon.png", applicationIconSize); !icon.isNull())
        applicationIcon_.addPixmap(icon, QIcon::Normal);
    if (const QPixmap logo = picture(file, "logo.png", logoSize); !logo.isNull())
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled})
            logoIcon_.addPixmap(logo, mode);
    readStringTable(file.read("strtable.txt"), strings_);
}

QString BrandingResources::description() const {
    return string("DESCRIPTION");
}

QString BrandingResources::homePageUrl() const {
    return string("HOMEPAGEURL");
}

QString BrandingResources::string(const char* key) const {
    const auto found = strings_.find(QLatin1String(key));
    return found == strings_.end() ? QString() : found->second;
}

} // namespace ui
