// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/asterisk_key.h"

#include <QKeyEvent>
#include <QTreeView>

namespace models {

namespace {

class AsteriskKey : public QObject {
public:
    explicit AsteriskKey(QTreeView& view)
        : QObject(&view)
        , view_(view) {
        view.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress ||
            static_cast<QKeyEvent*>(event)->key() != Qt::Key_Asterisk)
            return false;
        view_.expand(view_.currentIndex());
        return true;
    }

private:
    QTreeView& view_; ///< the parent
};

} // namespace

void expandOneLevelByAsterisk(QTreeView& view) {
    new AsteriskKey(view);
}

} // namespace models
