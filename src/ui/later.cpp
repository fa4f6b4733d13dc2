// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/later.h"

#include <utility>

#include <QCoreApplication>
#include <QObject>

#include "transport/call_passage.h"

namespace ui {

namespace {

/// Holds the work itself, so that the event carries only its type.
class Errand : public QObject {
public:
    Errand(QObject& context, std::function<void()> work)
        : QObject(&context)
        , work_(std::move(work)) {}

    bool event(QEvent* event) override {
        if (event->type() != laterEventType())
            return QObject::event(event);
        deleteLater();
        // The work may delete the context, and this object with it.
        const auto work = std::exchange(work_, {});
        if (work)
            work();
        return true;
    }

private:
    std::function<void()> work_;
};

} // namespace

void later(QObject& context, std::function<void()> work) {
    QCoreApplication::postEvent(new Errand(context, std::move(work)), new QEvent(laterEventType()));
}

bool waitsForCall(QObject& context, std::function<void()> again) {
    if (!hessiancln::CallPassage::underWay())
        return false;
    later(context, std::move(again));
    return true;
}

QEvent::Type laterEventType() {
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

} // namespace ui
