// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <QDir>
#include <QMap>
#include <QStringList>

#include "tests/tour/seen_texts.h"

class QWidget;

namespace tour {

/// The pictures that were taken, and what was seen on them.
class Album {
public:
    /// Without a folder the pictures are made, and thrown away. `refusal` is what an agent says, in
    /// its language, that doesn't do as it is told.
    explicit Album(QString refusal, std::optional<QDir> folder = {});

    const QString& refusal() const { return refusal_; }

    /// Takes what a widget shows as a screen of the catalogue. Ends the program if it isn't that
    /// screen, if there is such a picture already, or if it can't be written.
    void take(QWidget& shown, const char* screen);

    /// The screens of the catalogue that have no picture.
    QStringList missing() const;
    /// The titles and the texts of the boxes.
    const QStringList& boxTexts() const { return boxTexts_; }
    /// What stands in the title bar of each screen that has one, which no picture shows.
    const QMap<QString, QString>& titles() const { return titles_; }
    /// What a user reads on each screen.
    const QMap<QString, QList<SeenText>>& seenTexts() const { return seenTexts_; }
    /// What is wrong with the looks, with the screen in front.
    const QStringList& defects() const { return defects_; }

private:
    QString refusal_;
    std::optional<QDir> folder_;
    QStringList taken_;
    QStringList boxTexts_;
    QMap<QString, QString> titles_;
    QMap<QString, QList<SeenText>> seenTexts_;
    QStringList defects_;
};

} // namespace tour
