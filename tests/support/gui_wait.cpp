// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/gui_wait.h"

#include <utility>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include "app/waiting_panel.h"
#include "tests/support/gui_modal_driver.h"
#include "transport/call_passage.h"

namespace support {

InTheWait::InTheWait(std::function<void()> act)
    : act_(std::move(act)) {
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &InTheWait::look);
}

void InTheWait::look() {
    if (!hessiancln::CallPassage::underWay() || std::exchange(acting_, true))
        return;
    act_();
    acting_ = false;
}

QWidget* waitingPanel() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* panel = window->findChild<WaitingPanel*>(); panel && panel->isVisible())
            return panel;
    return nullptr;
}

QString waitingText() {
    QWidget* panel = waitingPanel();
    if (!panel)
        return {};
    return child<QLabel>(*panel, "labelWaiting")
        .text()
        .replace(QRegularExpression(QStringLiteral("\\d+")), QStringLiteral("N"));
}

void clickDisconnect() {
    QTest::mouseClick(&child<QPushButton>(*waitingPanel(), "buttonDisconnect"), Qt::LeftButton);
}

} // namespace support
