// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/contrast_theme.h"

#include <QApplication>
#include <QProxyStyle>

#include "ui/readable_colour.h"
#include "ui/style_replacement.h"

namespace ui {

namespace {

class ContrastThemeStyle : public QProxyStyle {
public:
    using QProxyStyle::polish;
    using QProxyStyle::QProxyStyle;

    void polish(QPalette& palette) override {
        QProxyStyle::polish(palette);
        if (!isDark(palette))
            return;
        // As the system does in its own tables.
        palette.setColor(QPalette::AlternateBase, palette.color(QPalette::Active, QPalette::Base));
        for (const auto link : {QPalette::Link, QPalette::LinkVisited})
            for (const auto background : {QPalette::Base, QPalette::Window})
                palette.setColor(
                    link, readable(palette.color(QPalette::Active, link), palette, background));
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        if (hint == SH_EtchDisabledText && isDark(QGuiApplication::palette()))
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
};

} // namespace

void completeContrastTheme(QApplication& application) {
    if (application.style()->inherits("QWindowsStyle") && isDark(QGuiApplication::palette()))
        putInFrontOfStyle<ContrastThemeStyle>(application);
}

} // namespace ui
