// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <QLabel>

class QAbstractItemView;

namespace ui {

/// What stands in a view that has no rows, so that it isn't taken for one that is still being
/// filled. Belongs to the view.
class EmptyNote : public QLabel {
    Q_OBJECT
public:
    /// `text` is asked each time; nothing is shown where it is empty.
    EmptyNote(QAbstractItemView& view, std::function<QString()> text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString wantedText() const;
    void update();

    QAbstractItemView& view_;
    std::function<QString()> text_;
};

} // namespace ui
