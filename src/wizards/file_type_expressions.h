// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <span>
#include <vector>

#include <QString>

/// The agent filters files by regular expressions and has no kinds of file. A kind becomes an
/// expression with all its extensions. When a set is read, a kind is recognised by an extension
/// that no other kind has, and the user's own extensions by a marker in front of them.
namespace wizards {

/// The selected kinds of file.
struct FileTypes {
    bool everything = false;

    bool documents = false;
    bool video = false;
    bool pictures = false;
    bool music = false;
    bool email = false;
    bool custom = false;
    QString customExtensions{}; ///< separated by bars, as typed

    // Excluded from everything:
    bool temporary = false;
    bool backup = false;
    bool excluded = false;
    QString excludedExtensions{}; ///< separated by bars, as typed
};

/// A kind of file, its check box and its expression.
struct FileKind {
    bool FileTypes::*chosen;
    QLatin1String box;          ///< object name of the check box
    QLatin1String sign;         ///< the extension that identifies the kind
    QLatin1String alternatives; ///< all its extensions, as written in an expression
    bool breaksLines = false;   ///< its patterns are shown as rich text
};

/// The kinds that can be selected, in the order they are written.
std::span<const FileKind> selectableKinds();
/// The kinds that can be excluded from everything. Their alternatives begin with the bar that
/// separates them from the preceding part, which may be empty.
std::span<const FileKind> rejectableKinds();

/// The displayed form of a kind's extensions: "*.asf, *.avi" and so on, in lines that fit a screen,
/// or as rich text, which wraps automatically.
QString patternsOf(const FileKind& kind);

/// A filter that a set needs below each of its roots.
struct FileTypeExpression {
    QString expression;
    bool inclusion = false; ///< selects files if true, otherwise rejects them

    bool operator==(const FileTypeExpression&) const = default;
};

/// The filters for a selection, in the order they are created.
std::vector<FileTypeExpression> expressionsOf(const FileTypes& types);

/// A filter read from a set.
struct ReadExpression {
    QString kinds; ///< the part that identifies kinds of file
    /// The user's own extensions; no value if the filter has none. Only the agent knows whether
    /// they are selected or rejected.
    std::optional<QString> custom;
};

ReadExpression readExpression(const QString& expression);

/// Sets the kinds from the concatenated `kinds` of all filters of a set. Leaves the rest unchanged.
void readKinds(const QString& kinds, FileTypes& types);

} // namespace wizards
