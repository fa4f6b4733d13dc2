// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <optional>

#include <QDir>
#include <QMap>
#include <QStringList>

#include "tests/tour/seen_texts.h"

class QWidget;

namespace tour {

/// The pictures taken, and what was seen on them.
class Album {
public:
    /// Without a folder the pictures are discarded. `refusal` is the text, in its language, with
    /// which an agent refuses a call.
    explicit Album(QString refusal, std::optional<QDir> folder = {});

    const QString& refusal() const { return refusal_; }
    bool keepsPictures() const { return folder_.has_value(); }

    /// Also looks for these defects on each screen.
    void alsoCheck(std::function<QStringList(const QWidget&)> defectsOf) {
        otherDefectsOf_ = std::move(defectsOf);
    }

    /// Takes a picture of a widget as a screen of the catalogue. Aborts the program if it isn't
    /// that screen, if there is such a picture already, or if it can't be written.
    void take(QWidget& shown, const char* screen);

    /// The screens of the catalogue without a picture.
    QStringList missing() const;
    /// The titles and texts of the boxes.
    const QStringList& boxTexts() const { return boxTexts_; }
    /// The window titles of the screens that have one, which no picture shows.
    const QMap<QString, QString>& titles() const { return titles_; }
    /// The texts on each screen.
    const QMap<QString, QList<SeenText>>& seenTexts() const { return seenTexts_; }
    /// Visual defects, each prefixed with its screen.
    const QStringList& defects() const { return defects_; }

private:
    QString refusal_;
    std::optional<QDir> folder_;
    std::function<QStringList(const QWidget&)> otherDefectsOf_;
    QStringList taken_;
    QStringList boxTexts_;
    QMap<QString, QString> titles_;
    QMap<QString, QList<SeenText>> seenTexts_;
    QStringList defects_;
};

} // namespace tour
