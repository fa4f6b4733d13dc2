// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace tour {

/// A text that a user meets, and the object that shows it.
struct SeenText {
    QString owner; ///< the object name, or the class if it has none
    QString text;
    bool isOfRow = false; ///< it may come from the agent
};

/// The texts of a widget and its children: on the screen, in tool tips, and those read out by a
/// screen reader. Text typed into a field is excluded.
QList<SeenText> seenTexts(const QWidget& shown);

} // namespace tour
