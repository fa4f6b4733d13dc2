// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/wipe.h"

namespace config {

namespace {

/// Volatile, since a compiler may drop what is written and never read.
template <class Character>
void overwrite(Character* text, std::size_t size) {
    volatile Character* const begin = text;
    for (std::size_t i = 0; i < size; ++i)
        begin[i] = Character();
}

} // namespace

void wipe(std::string& text) {
    overwrite(text.data(), text.size());
    text.clear();
}

void wipe(QByteArray& bytes) {
    if (bytes.isDetached())
        overwrite(bytes.data(), static_cast<std::size_t>(bytes.size()));
    bytes.clear();
}

void wipe(QString& text) {
    if (text.isDetached())
        overwrite(reinterpret_cast<ushort*>(text.data()), static_cast<std::size_t>(text.size()));
    text.clear();
}

std::string secretToWire(const QString& text) {
    QByteArray bytes = text.toUtf8();
    const WipedAtEnd guard(bytes);
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace config
