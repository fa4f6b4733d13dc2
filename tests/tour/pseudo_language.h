// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTranslator>

namespace tour {

/// A language that nobody speaks and everybody reads: each letter of a text has an accent, and its
/// words are longer by 40 %. What is written in plain letters on the screen was never translated,
/// and what is cut would be cut in a language with long words.
class PseudoLanguage : public QTranslator {
public:
    /// The text of `source`, with its places for arguments, its marks and its mnemonic.
    static QString textOf(const QString& source);
    /// Whether a text holds anything of this language.
    static bool isSpokenIn(const QString& text);

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int n) const override;
};

} // namespace tour
