// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>

namespace ui {

/// A line of external text of any length. If it is too wide, it ends in an ellipsis and a tool tip
/// shows the full text, unless the label has a tool tip of its own.
class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    /// The width of an ellipsis: the text doesn't widen the layout.
    QSize minimumSizeHint() const override;

    /// Whether part of the text is hidden.
    bool isCut() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
