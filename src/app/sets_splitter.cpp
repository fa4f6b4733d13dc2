// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/sets_splitter.h"

#include <algorithm>

#include <QResizeEvent>
#include <QSplitter>

namespace app {

namespace {

constexpr int readableList = 300;   ///< the narrowest list beside the details
constexpr int fewestCards = 2 * 70; ///< the lowest list above the details

} // namespace

SetsSplitter::SetsSplitter(QSplitter& splitter, QWidget& details)
    : QObject(&splitter)
    , splitter_(splitter)
    , details_(details) {
    // Otherwise the window couldn't get too narrow for both.
    splitter.setMinimumWidth(1);
    splitter.installEventFilter(this);
}

bool SetsSplitter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        follow(static_cast<QResizeEvent*>(event)->size());
    return QObject::eventFilter(watched, event);
}

void SetsSplitter::follow(const QSize& size) {
    const QSize wanted = details_.sizeHint();
    const int needed = readableList + splitter_.handleWidth() + wanted.width();
    const auto orientation = size.width() < needed ? Qt::Vertical : Qt::Horizontal;
    if (orientation == splitter_.orientation())
        return;
    if (orientation == Qt::Vertical)
        detailsWidth_ = details_.width();
    splitter_.setOrientation(orientation);
    if (orientation == Qt::Vertical) {
        const int details = std::min(wanted.height(), size.height() - fewestCards);
        splitter_.setSizes({size.height() - details, details});
    } else {
        splitter_.setSizes({size.width() - detailsWidth_, detailsWidth_});
    }
}

} // namespace app
