// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QTest>

#include "tests/support/gui_modal_driver.h"

/// The texts of a form before any input.
namespace support {

/// A widget's object name and its text (of a button, label or group) or its picture's resource.
struct FormText {
    const char* name;
    const char* text;
};

inline QString textOf(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
        return group->title();
    return QStringLiteral("(no text)");
}

inline void compareTexts(QWidget& form, std::initializer_list<FormText> texts) {
    for (const auto& [name, text] : texts)
        QCOMPARE(textOf(child<QWidget>(form, name)), QString::fromUtf8(text));
}

inline QStringList entriesOf(const QComboBox& combo) {
    QStringList entries;
    for (int index = 0; index < combo.count(); ++index)
        entries += combo.itemText(index);
    return entries;
}

inline void compareIcon(QWidget& form, const char* name, const char* resource) {
    const auto& button = child<QAbstractButton>(form, name);
    QCOMPARE(button.icon().pixmap(16).toImage(),
             QIcon(QString::fromUtf8(resource)).pixmap(16).toImage());
    QVERIFY(!button.icon().pixmap(16).isNull());
}

/// The window sets the program's icon itself: its parent has a different one here.
inline void compareWindowIcon(QWidget& window) {
    const auto picture = [](const QIcon& icon) { return icon.pixmap(64).toImage(); };
    const QImage expected = picture(QIcon(QStringLiteral(":/icons/tarn_mobile_icon")));
    QVERIFY(!expected.isNull());
    QWidget* parent = window.parentWidget();
    const QIcon before = parent ? parent->windowIcon() : QIcon();
    if (parent)
        parent->setWindowIcon(QIcon(QStringLiteral(":/icons/help.png")));
    const QImage shown = picture(window.windowIcon());
    if (parent)
        parent->setWindowIcon(before);
    QCOMPARE(shown, expected);
}

/// Each field's label, whose mnemonic moves the focus to that field.
inline void compareBuddies(QWidget& form, std::initializer_list<FormText> fields) {
    for (const auto& [label, field] : fields) {
        const QWidget* buddy = child<QLabel>(form, label).buddy();
        QVERIFY2(buddy, label);
        QCOMPARE(buddy->objectName(), QString::fromUtf8(field));
    }
}

} // namespace support
