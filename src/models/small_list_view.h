// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QListView>

/// A list that a layout can shrink to any size. Its rows have a uniform height, so that the view
/// doesn't have to measure each of them. Screen readers see the rows below its root.
class CSmallListView : public QListView {
    Q_OBJECT
public:
    explicit CSmallListView(QWidget* parent = nullptr);

    /// Invalid: no preference.
    QSize sizeHint() const override;
};
