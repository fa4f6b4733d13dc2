// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/gui_screen_reader.h"

#include <QAccessible>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace support {

namespace {

QStringList texts;

/// Desktop screen readers read out an alert that appears.
QStringList textsOfAppearing(const QAccessibleInterface* face) {
    return face && face->role() == QAccessible::AlertMessage
               ? QStringList(face->text(QAccessible::Name))
               : QStringList();
}

QStringList textsOf(const QAccessibleEvent& event) {
    switch (event.type()) {
    case QAccessible::ObjectShow:
        return textsOfAppearing(event.accessibleInterface());
    case QAccessible::TextInserted:
        return {static_cast<const QAccessibleTextInsertEvent&>(event).textInserted()};
    case QAccessible::TextRemoved:
        return {static_cast<const QAccessibleTextRemoveEvent&>(event).textRemoved()};
    case QAccessible::TextUpdated: {
        const auto& update = static_cast<const QAccessibleTextUpdateEvent&>(event);
        return {update.textRemoved(), update.textInserted()};
    }
    case QAccessible::ValueChanged:
        return {static_cast<const QAccessibleValueChangeEvent&>(event).value().toString()};
    default:
        return {};
    }
}

void hear(QAccessibleEvent* event) {
    event->accessibleInterface();
    texts << textsOf(*event);
}

void connectReader(bool isThere) {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(isThere);
}

} // namespace

ScreenReader::ScreenReader() {
    texts.clear();
    connectReader(true);
    QAccessible::installUpdateHandler(hear);
}

ScreenReader::~ScreenReader() {
    QAccessible::installUpdateHandler(nullptr);
    connectReader(false);
}

const QStringList& ScreenReader::heard() const {
    return texts;
}

void ScreenReader::forget() {
    texts.clear();
}

} // namespace support
