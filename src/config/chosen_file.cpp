// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/chosen_file.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextCodec>

#include "base/secret.h"
#include "session/text.h"

namespace config {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ChosenFile)
};

[[noreturn]] void refuse(const QString& why, const QFile& file) {
    throw std::runtime_error(session::toWire(why.arg(file.fileName())));
}

struct Extent {
    qint64 bytes = 0;
    qint64 longestLine = 0;
};

/// Stops at the limit. The size that the system reports is unreliable: it is 0 for files in /proc.
Extent extentOf(QFile& file) {
    std::string block(4096, '\0');
    const base::WipedAtEnd blockGuard(block);
    Extent extent;
    qint64 line = 0;
    for (qint64 size = 0; extent.bytes <= largestChosenFile &&
                          (size = file.read(block.data(), static_cast<qint64>(block.size()))) > 0;
         extent.bytes += size)
        for (const char byte : std::string_view(block.data(), static_cast<std::size_t>(size))) {
            extent.longestLine = std::max(extent.longestLine, ++line);
            if (byte == '\n')
                line = 0;
        }
    return extent;
}

} // namespace

QString firstFileEndingIn(QLatin1String ending, const QStringList& names) {
    const auto found = std::find_if(names.begin(), names.end(), [ending](const QString& name) {
        return name.endsWith(ending, Qt::CaseInsensitive);
    });
    return found == names.end() ? QString() : *found;
}

bool openChosen(QFile& file, QIODevice::OpenMode mode) {
    // Before opening it: opening a pipe without a writer blocks forever.
    const QFileInfo info(file.fileName());
    if (info.exists() && !info.isFile())
        refuse(Texts::tr("\"%1\" is not a regular file."), file);
    if (!file.open(QIODevice::ReadOnly | mode))
        return false;
    const Extent extent = extentOf(file);
    if (std::max(file.size(), extent.bytes) > largestChosenFile)
        refuse(Texts::tr("\"%1\" is larger than 1 MiB."), file);
    if (extent.longestLine > longestLine)
        refuse(Texts::tr("\"%1\" has a line of more than 64 KiB."), file);
    return file.seek(0);
}

bool isUtf8(std::string_view bytes) {
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForName("UTF-8")->toUnicode(
        bytes.data(), static_cast<int>(bytes.size()), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

QString textOfLine(std::string_view bytes) {
    return isUtf8(bytes) ? session::fromWire(bytes)
                         : QString::fromLatin1(bytes.data(), static_cast<int>(bytes.size()));
}

} // namespace config
