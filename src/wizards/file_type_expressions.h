// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <span>
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

/// A kind of file, its check box and its expression.
struct FileKind {
    bool FileTypes::*chosen;
    QLatin1String box;          ///< object name of the check box
    QLatin1String sign;         ///< the extension by which the kind is recognised
    QLatin1String alternatives; ///< all its extensions, as they stand in an expression
    bool breaksLines = false;   ///< its patterns are shown as rich text
};

/// The kinds that can be selected, in the order in which they are written.
std::span<const FileKind> selectableKinds();
/// The kinds that can be left out of everything. Their alternatives begin with the bar that parts
/// them from what stands before, which may be nothing.
std::span<const FileKind> rejectableKinds();

/// What people see of a kind's extensions: "*.asf, *.avi" and so on, in lines that fit a screen, or
/// as rich text, which breaks its lines by itself.
QString patternsOf(const FileKind& kind);

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

} // namespace wizards
