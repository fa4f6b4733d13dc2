// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QToolButton>

namespace ui {

/// A button with a plain text, which it shows elided where there is too little room for it.
class ElidedToolButton : public QToolButton {
    Q_OBJECT
public:
    explicit ElidedToolButton(QWidget* parent = nullptr);

    /// The text may contain a button's mnemonic marker, which isn't one here.
    void setPlainText(const QString& text);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int textWidth(const QString& text) const;
};

} // namespace ui
