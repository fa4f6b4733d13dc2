// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

/// The user guide: where it is, and how it opens.
namespace app {

/// The guide in `language`, a code as in "--lang" or empty for English: "user-guide.<language>.pdf"
/// or else "user-guide.pdf" in the first of `folders` that has it. Without any guide the English
/// one in the last folder, for a message to name. `folders` must not be empty.
QUrl guideIn(const QStringList& folders, const QString& language);

/// The address that the build names, if it does, or else the guide in the folder "doc" beside the
/// program or in the folder of the installation.
QUrl helpUrl(const QString& language);

/// False if `url` is a file that is missing, or if the desktop has no program for it.
bool openGuide(const QUrl& url);

} // namespace app
