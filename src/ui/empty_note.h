// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <QLabel>

class QAbstractItemView;

namespace ui {

/// The note in a view without rows, so that users don't think that it is still loading. Owned by
/// the view.
class EmptyNote : public QLabel {
    Q_OBJECT
public:
    /// Calls `text` for each update; without a text, the note is hidden.
    EmptyNote(QAbstractItemView& view, std::function<QString()> text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString wantedText() const;
    void update();

    QAbstractItemView& view_;
    std::function<QString()> text_;
};

} // namespace ui
