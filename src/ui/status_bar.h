// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStatusBar>

namespace ui {

/// A status bar whose message ends in an ellipsis if there is no room for it beside the permanent
/// widgets; a tool tip then shows all of it.
class StatusBar : public QStatusBar {
    Q_OBJECT
public:
    using QStatusBar::QStatusBar;

    /// Whether part of the message is hidden.
    bool isCut() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// The place of the message, where the base class draws it.
    QRect messagePlace() const;
};

} // namespace ui
