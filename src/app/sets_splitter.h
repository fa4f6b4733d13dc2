// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

class QSplitter;
class QWidget;

namespace app {

/// In a narrow window, puts the details of the selected set below the list of sets, so that the
/// names in the list can still be read.
class SetsSplitter : public QObject {
    Q_OBJECT
public:
    /// The splitter, whose child this becomes, holds the list and the details.
    SetsSplitter(QSplitter& splitter, QWidget& details);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(const QSize& size);

    QSplitter& splitter_;
    QWidget& details_;
    int detailsWidth_ = 0; ///< beside the list
};

} // namespace app
