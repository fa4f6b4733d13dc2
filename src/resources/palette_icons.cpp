// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "resources/palette_icons.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>

namespace resources {

namespace {

QString darkTwin(const QString& file) {
    return QStringLiteral(":/dark") + file.mid(1);
}

/// The format of all pictures. Without it Qt would load its plug-ins for all the others, because
/// the names have no suffix.
constexpr const char* format = "png";

/// A file in its own pixels, at any scale.
QPixmap load(const QString& file) {
    QPixmap pixmap(file, format);
    pixmap.setDevicePixelRatio(1);
    return pixmap;
}

bool isTextLight(QIcon::Mode mode) {
    const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
    return QGuiApplication::palette().color(QPalette::Active, role).lightnessF() > 0.5;
}

bool fits(const QSize& drawing, const QSize& size) {
    return drawing.width() >= size.width() && drawing.height() >= size.height();
}

/// Whether a drawing needs less scaling down to `size` than another one.
bool isBetter(const QSize& drawing, const QSize& other, const QSize& size) {
    return fits(drawing, size) ? !fits(other, size) || fits(other, drawing) : fits(drawing, other);
}

/// Never larger than the drawing.
QSize shownSize(const QSize& drawing, const QSize& size) {
    return fits(size, drawing) ? drawing : drawing.scaled(size, Qt::KeepAspectRatio);
}

QPixmap shown(const QPixmap& drawing, const QSize& size, QIcon::Mode mode) {
    QPixmap result = size == drawing.size()
                         ? drawing
                         : drawing.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (mode != QIcon::Disabled)
        return result;
    QStyleOption option;
    option.palette = QGuiApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, result, &option);
}

} // namespace

PaletteIconEngine::Drawing::Drawing(QIcon::Mode mode, const QString& file)
    : mode_(mode)
    , file_(file) {}

PaletteIconEngine::Drawing::Drawing(QIcon::Mode mode, const QPixmap& picture)
    : mode_(mode)
    , onLight_(picture)
    , onDark_(picture) {}

const QPixmap& PaletteIconEngine::Drawing::onPalette(QIcon::Mode mode) const {
    return isTextLight(mode) ? onDark() : onLight();
}

const QPixmap& PaletteIconEngine::Drawing::onLight() const {
    if (onLight_.isNull())
        onLight_ = load(file_);
    return onLight_;
}

const QPixmap& PaletteIconEngine::Drawing::onDark() const {
    if (onDark_.isNull()) {
        const QString twin = darkTwin(file_);
        onDark_ = QFile::exists(twin) ? load(twin) : onLight();
    }
    return onDark_;
}

const PaletteIconEngine::Drawing* PaletteIconEngine::drawingFor(const QSize& size,
                                                                QIcon::Mode mode) const {
    const Drawing* best = nullptr;
    for (const Drawing& drawing : drawings_) {
        if (drawing.mode() != mode)
            continue;
        if (!best || isBetter(drawing.size(), best->size(), size))
            best = &drawing;
    }
    return best || mode == QIcon::Normal ? best : drawingFor(size, QIcon::Normal);
}

void PaletteIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                              QIcon::State state) {
    const qreal ratio = QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps)
                            ? painter->device()->devicePixelRatioF()
                            : 1.0;
    painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
}

QPixmap PaletteIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) {
    const Drawing* drawing = drawingFor(size, mode);
    if (!drawing)
        return {};
    const QPixmap& picture = drawing->onPalette(mode);
    const QSize wanted = shownSize(picture.size(), size);
    // A drawing for exactly this mode isn't changed.
    const QIcon::Mode change = drawing->mode() == mode ? QIcon::Normal : mode;
    if (change != QIcon::Disabled && wanted == picture.size())
        return picture;
    const QString key = QStringLiteral("palette_icon_%1_%2_%3x%4_%5")
                            .arg(picture.cacheKey())
                            .arg(change)
                            .arg(wanted.width())
                            .arg(wanted.height())
                            .arg(QGuiApplication::palette().cacheKey());
    QPixmap result;
    if (!QPixmapCache::find(key, &result)) {
        result = shown(picture, wanted, change);
        QPixmapCache::insert(key, result);
    }
    return result;
}

QSize PaletteIconEngine::actualSize(const QSize& size, QIcon::Mode mode, QIcon::State) {
    const Drawing* drawing = drawingFor(size, mode);
    return drawing ? shownSize(drawing->size(), size) : QSize();
}

QList<QSize> PaletteIconEngine::availableSizes(QIcon::Mode mode, QIcon::State) const {
    QList<QSize> sizes;
    for (const Drawing& drawing : drawings_)
        if (drawing.mode() == mode)
            sizes << drawing.size();
    return sizes;
}

void PaletteIconEngine::addFile(const QString& file, const QSize&, QIcon::Mode mode, QIcon::State) {
    if (QFile::exists(file))
        drawings_.append({mode, file});
}

void PaletteIconEngine::addPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State) {
    drawings_.erase(
        std::remove_if(drawings_.begin(), drawings_.end(),
                       [mode](const Drawing& drawing) { return drawing.mode() == mode; }),
        drawings_.end());
    drawings_.append({mode, pixmap});
}

QString PaletteIconEngine::key() const {
    return QStringLiteral("PaletteIconEngine");
}

QIconEngine* PaletteIconEngine::clone() const {
    return new PaletteIconEngine(*this);
}

QIconEngine* PaletteIconPlugin::create(const QString& file) {
    const bool isOurs = file.startsWith(QLatin1String(":/")) &&
                        !file.startsWith(QLatin1String(":/qt-project.org/")) && QFile::exists(file);
    // If this returns null, Qt uses its own engine, which reads each picture at once.
    return isOurs ? new PaletteIconEngine : nullptr;
}

} // namespace resources
