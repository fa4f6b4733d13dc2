// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/empty_note.h"

#include <utility>

#include <QAbstractItemView>
#include <QEvent>

namespace ui {

EmptyNote::EmptyNote(QAbstractItemView& view, std::function<QString()> text)
    : QLabel(view.viewport())
    , view_(view)
    , text_(std::move(text)) {
    setObjectName(QStringLiteral("emptyNote"));
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(6);
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    view.viewport()->installEventFilter(this);
}

bool EmptyNote::eventFilter(QObject* watched, QEvent* event) {
    // A view repaints after each change of its rows, and no widget may change during a paint.
    if (event->type() == QEvent::Paint && wantedText() != (isHidden() ? QString() : text()))
        QMetaObject::invokeMethod(this, &EmptyNote::update, Qt::QueuedConnection);
    if (event->type() == QEvent::Resize)
        setGeometry(view_.viewport()->rect());
    return QLabel::eventFilter(watched, event);
}

QString EmptyNote::wantedText() const {
    const QAbstractItemModel* model = view_.model();
    return model && model->rowCount(view_.rootIndex()) == 0 ? text_() : QString();
}

void EmptyNote::update() {
    setText(wantedText());
    setGeometry(view_.viewport()->rect());
    setVisible(!text().isEmpty());
}

} // namespace ui
