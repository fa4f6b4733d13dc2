// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QCoreApplication>

// Qt's own texts, which it looks up in these contexts. Its translations aren't installed on every
// machine, so the texts are included with the program's.
namespace {

[[maybe_unused]] constexpr const char* standardButtons[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),
};

[[maybe_unused]] constexpr const char* fileDialog[] = {
    QT_TRANSLATE_NOOP("QFileDialog", "Look in:"),
    QT_TRANSLATE_NOOP("QFileDialog", "Back"),
    QT_TRANSLATE_NOOP("QFileDialog", "Go back"),
    QT_TRANSLATE_NOOP("QFileDialog", "Forward"),
    QT_TRANSLATE_NOOP("QFileDialog", "Go forward"),
    QT_TRANSLATE_NOOP("QFileDialog", "Parent Directory"),
    QT_TRANSLATE_NOOP("QFileDialog", "Go to the parent directory"),
    QT_TRANSLATE_NOOP("QFileDialog", "Create New Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "Create a New Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "List View"),
    QT_TRANSLATE_NOOP("QFileDialog", "Change to list view mode"),
    QT_TRANSLATE_NOOP("QFileDialog", "Detail View"),
    QT_TRANSLATE_NOOP("QFileDialog", "Change to detail view mode"),
    QT_TRANSLATE_NOOP("QFileDialog", "&Open"),
    QT_TRANSLATE_NOOP("QFileDialog", "File &name:"),
    QT_TRANSLATE_NOOP("QFileDialog", "Files of type:"),
    QT_TRANSLATE_NOOP("QFileDialog", "Drive"),
    QT_TRANSLATE_NOOP("QFileDialog", "File"),
    QT_TRANSLATE_NOOP("QFileDialog", "%1 File"),
    QT_TRANSLATE_NOOP("QFileDialog", "Unknown"),
    QT_TRANSLATE_NOOP("QFileDialog", "&Rename"),
    QT_TRANSLATE_NOOP("QFileDialog", "&Delete"),
    QT_TRANSLATE_NOOP("QFileDialog", "Show &hidden files"),
    QT_TRANSLATE_NOOP("QFileDialog", "&New Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "New Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "Recent Places"),
    QT_TRANSLATE_NOOP("QFileDialog", "Remove"),
    QT_TRANSLATE_NOOP("QFileDialog", "Show "),
    QT_TRANSLATE_NOOP("QFileDialog", "Delete"),
    QT_TRANSLATE_NOOP("QFileDialog", "Are you sure you want to delete '%1'?"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Name"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Size"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Date Modified"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Computer"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "My Computer"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Invalid filename"),
};

[[maybe_unused]] constexpr const char* fileProblems[] = {
    QT_TRANSLATE_NOOP("QFileDialog", "'%1' is write protected.\nDo you want to delete it anyway?"),
    QT_TRANSLATE_NOOP("QFileDialog", "Could not delete directory."),
    QT_TRANSLATE_NOOP("QFileDialog",
                      "%1\nDirectory not found.\nPlease verify the correct directory "
                      "name was given."),
    QT_TRANSLATE_NOOP("QFileDialog",
                      "%1\nFile not found.\nPlease verify the correct file name was given."),
    QT_TRANSLATE_NOOP("QFileSystemModel",
                      "<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer "
                      "characters or no punctuation marks."),
};

struct Described {
    const char* text;
    const char* meaning;
};

[[maybe_unused]] constexpr Described kindsOfFile[] = {
    QT_TRANSLATE_NOOP3("QFileSystemModel", "Type", "All other platforms"),
    QT_TRANSLATE_NOOP3("QFileDialog", "Folder", "All other platforms"),
    QT_TRANSLATE_NOOP3("QFileDialog", "File Folder", "Match Windows Explorer"),
    QT_TRANSLATE_NOOP3("QFileDialog", "Shortcut", "All other platforms"),
};

[[maybe_unused]] constexpr const char* menuOfLine[] = {
    QT_TRANSLATE_NOOP("QLineEdit", "&Undo"),      QT_TRANSLATE_NOOP("QLineEdit", "&Redo"),
    QT_TRANSLATE_NOOP("QLineEdit", "Cu&t"),       QT_TRANSLATE_NOOP("QLineEdit", "&Copy"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Paste"),     QT_TRANSLATE_NOOP("QLineEdit", "Delete"),
    QT_TRANSLATE_NOOP("QLineEdit", "Select All"),
};

[[maybe_unused]] constexpr const char* menuOfNumber[] = {
    QT_TRANSLATE_NOOP("QAbstractSpinBox", "&Select All"),
    QT_TRANSLATE_NOOP("QAbstractSpinBox", "&Step up"),
    QT_TRANSLATE_NOOP("QAbstractSpinBox", "Step &down"),
};

} // namespace
