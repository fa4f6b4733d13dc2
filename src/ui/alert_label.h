// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>

namespace ui {

/// A label with the outcome of an action, away from the focus. It has the role of an alert, which
/// screen readers announce by itself as it appears.
class AlertLabel : public QLabel {
    Q_OBJECT
public:
    explicit AlertLabel(QWidget* parent = nullptr);

    /// Sets the text, and has it announced if the label is visible.
    void announce(const QString& text);
};

} // namespace ui
