// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QListView>

/// A list that a layout may make as small as it likes. Its rows are of one height, so that the view
/// needn't measure each of them.
class CSmallListView : public QListView {
    Q_OBJECT
public:
    explicit CSmallListView(QWidget* parent = nullptr);

    /// Invalid: no wish.
    QSize sizeHint() const override;
};
