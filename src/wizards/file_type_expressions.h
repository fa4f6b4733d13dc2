// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <vector>

#include <QString>

/// The agent filters files by regular expressions and knows no kinds of file. A kind becomes an
/// expression with all its extensions. When a set is read, a kind is recognised by one extension
/// that no other kind has, and extensions of the user's own by a word that stands before them.
namespace wizards {

/// What is chosen of the kinds of file.
struct FileTypes {
    bool everything = false;

    bool documents = false;
    bool video = false;
    bool pictures = false;
    bool music = false;
    bool email = false;
    bool custom = false;
    QString customExtensions{}; ///< separated by bars, as typed

    // Left out of everything:
    bool temporary = false;
    bool backup = false;
    bool excluded = false;
    QString excludedExtensions{}; ///< separated by bars, as typed
};

/// A filter that a set needs below each of its roots.
struct FileTypeExpression {
    QString expression;
    bool inclusion = false; ///< it selects files; otherwise it rejects them

    bool operator==(const FileTypeExpression&) const = default;
};

/// The filters for a choice, in the order in which they are made.
std::vector<FileTypeExpression> expressionsOf(const FileTypes& types);

/// A filter of a set that was read.
struct ReadExpression {
    QString kinds; ///< the part that tells kinds of file
    /// The user's own extensions; absent if the filter isn't about any. Whether they are selected
    /// or rejected is known to the agent only.
    std::optional<QString> custom;
};

ReadExpression readExpression(const QString& expression);

/// Sets the kinds by the `kinds` of all filters of a set, put together. The rest stays.
void readKinds(const QString& kinds, FileTypes& types);

/// What people see of a kind's extensions: "*.asf, *.avi" and so on, in lines that fit a screen.
QString documentPatterns();
QString videoPatterns();
QString picturePatterns();
QString musicPatterns();
/// The same as rich text, which breaks its lines by itself.
QString emailPatterns();

} // namespace wizards
