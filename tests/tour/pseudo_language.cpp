// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/tour/pseudo_language.h"

#include <algorithm>
#include <cstring>

#include <QRegularExpression>

namespace tour {

namespace {

const QString plainLetters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
const QString accentedLetters =
    QString::fromUtf8("ÀßÇĐÉƑĜĤÎĴĶĻṀÑÖÞǪŔŠŢÛṼŴẊÝŽàƀçđéƒĝĥîĵķļɱñöþǫŕšţûṽŵẋýž");

/// Adds two letters to five.
constexpr double growth = 0.4;

QString accented(const QStringRef& words) {
    QString text;
    double due = 1 - growth; // short texts get one too
    for (const QChar character : words) {
        const int letter = plainLetters.indexOf(character);
        if (letter < 0) {
            text += character;
            continue;
        }
        text += accentedLetters[letter];
        due += growth;
        if (due >= 1) {
            text += accentedLetters[letter].toLower();
            due -= 1;
        }
    }
    return text;
}

} // namespace

QString PseudoLanguage::textOf(const QString& source) {
    // Arguments, tags, entities, and the patterns of a file dialog.
    static const QRegularExpression kept(
        QStringLiteral(R"re(%L?(\d+|n)|</?[a-z][^>]*>|&[a-z]+;|\([^)]*\*[^)]*\))re"));
    QString text;
    int end = 0;
    for (auto match = kept.globalMatch(source); match.hasNext();) {
        const auto piece = match.next();
        text += accented(source.midRef(end, piece.capturedStart() - end)) + piece.captured();
        end = piece.capturedEnd();
    }
    return text + accented(source.midRef(end));
}

bool PseudoLanguage::isSpokenIn(const QString& text) {
    return std::any_of(text.begin(), text.end(),
                       [](QChar character) { return accentedLetters.contains(character); });
}

QString PseudoLanguage::translate(const char*, const char* source, const char*, int) const {
    // Not a text: Qt asks for the direction of the language.
    if (std::strcmp(source, "QT_LAYOUT_DIRECTION") == 0)
        return QStringLiteral("RTL");
    return textOf(QString::fromUtf8(source));
}

} // namespace tour
