// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QIconEngine>
#include <QIconEnginePlugin>
#include <QPixmap>
#include <QVector>

namespace resources {

/// The picture of an icon, which may exist twice: for dark text on a light palette, and, as the
/// same resource below `:/dark`, for light text on a dark one. The choice follows the program's
/// current palette; in a selected row, it follows the colour of the selected text.
class PaletteIconEngine : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override;
    void addFile(const QString& file, const QSize& size, QIcon::Mode mode,
                 QIcon::State state) override;
    /// Replaces the pictures of a mode, for both palettes.
    void addPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state) override;
    QString key() const override;
    QIconEngine* clone() const override;

private:
    /// Loaded on first use, per palette.
    class Drawing {
    public:
        Drawing(QIcon::Mode mode, const QString& file);
        Drawing(QIcon::Mode mode, const QPixmap& picture);
        QIcon::Mode mode() const { return mode_; }
        /// In its own pixels, at any scale.
        QSize size() const { return onPalette(mode_).size(); }
        const QPixmap& onPalette(QIcon::Mode mode) const;

    private:
        const QPixmap& onLight() const;
        const QPixmap& onDark() const;

        QIcon::Mode mode_;
        QString file_;
        mutable QPixmap onLight_;
        mutable QPixmap onDark_;
    };
    /// The smallest drawing for a mode that is at least `size` pixels large, or else the largest
    /// one. Without one for this mode, that for `QIcon::Normal`; null without a drawing.
    const Drawing* drawingFor(const QSize& size, QIcon::Mode mode) const;

    QVector<Drawing> drawings_;
};

/// Makes Qt use this engine for each `QIcon` of a picture of the program.
class PaletteIconPlugin : public QIconEnginePlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "palette_icons.json")
public:
    QIconEngine* create(const QString& file) override;
};

} // namespace resources
