// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

/// Finding and opening the user guide and web pages.
namespace app {

/// The guide in `language`, a code as in "--lang" or empty for English: "user-guide.<language>.pdf"
/// or else "user-guide.pdf" in the first of `folders` that has it. If there is no guide, returns
/// the English one in the last folder, to be named in a message. `folders` must not be empty.
QUrl guideIn(const QStringList& folders, const QString& language);

/// The URL set by the build, if any, or else the guide in the folder "doc" beside the program or in
/// the installation folder.
QUrl helpUrl(const QString& language);

/// Returns false if `url` is a missing file, or if the desktop has no program for it.
bool openGuide(const QUrl& url);

/// Opens `url` in the desktop's program for it. That program's current directory is the user's home
/// folder: on Windows, ours is usually the program's folder, which couldn't be removed while
/// another program runs in it. Returns false if the desktop has no program for it.
bool openUrl(const QUrl& url);

} // namespace app
