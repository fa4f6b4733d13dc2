// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTreeView>

/// A tree that a layout may make as small as it likes. Its rows are of one height, so that the view
/// needn't measure each of them, and the asterisk key expands no more than the current one.
class CSmallTreeView : public QTreeView {
    Q_OBJECT
public:
    explicit CSmallTreeView(QWidget* parent = nullptr);

    /// Invalid: no wish.
    QSize sizeHint() const override;
};
