// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTreeView>

/// A tree that a layout can shrink to any size. Its rows have a uniform height, so that the view
/// doesn't have to measure each of them, and the asterisk key expands only the current one.
class CSmallTreeView : public QTreeView {
    Q_OBJECT
public:
    explicit CSmallTreeView(QWidget* parent = nullptr);

    /// Invalid: no preference.
    QSize sizeHint() const override;
};
