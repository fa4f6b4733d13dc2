// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/health_field.h"

#include <QEvent>

#include "insight/insight_texts.h"
#include "ui/shared_icon.h"

namespace app {

HealthField::HealthField(QWidget* parent)
    : ElidedToolButton(parent) {
    setObjectName(QStringLiteral("healthField"));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setTexts();
}

void HealthField::showCount(const insight::HealthCount& count) {
    count_ = count;
    isKnown_ = true;
    setTexts();
}

void HealthField::showNothing() {
    isKnown_ = false;
    setTexts();
}

void HealthField::setTexts() {
    const QString text = isKnown_ ? insight::summaryText(count_) : tr("Not connected");
    setPlainText(text);
    setIcon(ui::sharedIcon(isKnown_ ? insight::summaryIcon(count_)
                                    : QStringLiteral(":/icons/event_info.png")));
    setAccessibleName(tr("Backup health: %1").arg(text));
    setToolTip(isKnown_ && count_.attention == 0 && count_.unsettled > 0
                   ? tr("Click to read the schedules, and to see whether a backup is overdue")
                   : tr("Click to see the health of each backup set"));
}

void HealthField::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    ElidedToolButton::changeEvent(event);
}

} // namespace app
