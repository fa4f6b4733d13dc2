// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace tour {

/// A text that a user meets, and the object that shows it.
struct SeenText {
    QString owner; ///< its name, or its class where it has none
    QString text;
    bool isOfRow = false; ///< it may come from the agent
};

/// The texts of a widget and of all that it holds: those on the screen, those that are shown under
/// the pointer, and those that are read out. What is typed in a field isn't among them.
QList<SeenText> seenTexts(const QWidget& shown);

} // namespace tour
