// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTranslator>

namespace tour {

/// A readable pseudo-language: each letter has an accent, words are 40 % longer, and windows are
/// laid out from right to left. Plain letters on the screen were never translated, and a text that
/// is cut would also be cut in a language with long words.
class PseudoLanguage : public QTranslator {
public:
    /// The translation of `source`, with its placeholders, markup and mnemonic.
    static QString textOf(const QString& source);
    /// Whether a text contains anything in this language.
    static bool isSpokenIn(const QString& text);

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int n) const override;
};

} // namespace tour
