// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/text.h"

#include <limits>
#include <stdexcept>

#include <QByteArray>

namespace session {

std::string toWire(const QString& text) {
    return text.toStdString();
}

QString fromWire(std::string_view text) {
    if (text.size() > std::numeric_limits<int>::max() / sizeof(QChar))
        throw std::length_error("Text too long to be shown");
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace session
