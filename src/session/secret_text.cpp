// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/secret_text.h"

namespace session {

namespace {

template <class Text>
void wipeUnlessShared(Text& text) {
    if (text.isDetached())
        base::wipe(text.data(), static_cast<std::size_t>(text.size()) * sizeof(*text.constData()));
    text.clear();
}

} // namespace

void wipe(QString& text) {
    wipeUnlessShared(text);
}

void wipe(QByteArray& bytes) {
    wipeUnlessShared(bytes);
}

base::Secret secretToWire(const QString& text) {
    QByteArray bytes = text.toUtf8();
    std::string wire(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    wipe(bytes);
    return base::Secret(std::move(wire));
}

} // namespace session
