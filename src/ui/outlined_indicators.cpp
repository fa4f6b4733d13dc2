// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/outlined_indicators.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleOptionButton>

#include "ui/readable_colour.h"
#include "ui/style_replacement.h"

namespace ui {

namespace {

bool isIndicator(QStyle::PrimitiveElement element) {
    return element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_IndicatorRadioButton;
}

/// The boxes in views are painted as check boxes, too.
class OutlinedIndicators : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (!button || !isIndicator(element) || !isDark(option->palette)) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            return;
        }
        // The style takes a darker shade of the window's colour for the frame, and uses that colour
        // for nothing else here.
        QStyleOptionButton outlined(*button);
        outlined.palette.setBrush(QPalette::Window, outlined.palette.windowText());
        QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
    }
};

} // namespace

void outlineIndicators(QApplication& application) {
    if (application.style()->inherits("QFusionStyle"))
        putInFrontOfStyle<OutlinedIndicators>(application);
}

} // namespace ui
