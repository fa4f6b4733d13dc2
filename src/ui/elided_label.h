// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>

namespace ui {

/// A line of somebody else's text, of any length. Where it is wider than its place it ends in an
/// ellipsis, and its tool tip shows it whole, unless the label has a tool tip of its own.
class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    /// The width of an ellipsis: the text doesn't widen what the label stands in.
    QSize minimumSizeHint() const override;

    /// Whether a part of the text isn't seen.
    bool isCut() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
