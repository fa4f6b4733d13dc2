// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <QString>

/// Takes keys and passwords out of memory.
namespace config {

void wipe(std::string& text);
void wipe(QByteArray& bytes);
/// A text that others share is left to them.
void wipe(QString& text);

/// Wipes a text at the end of the block.
template <class Text>
class WipedAtEnd {
public:
    explicit WipedAtEnd(Text& text)
        : text_(text) {}
    ~WipedAtEnd() { wipe(text_); }
    WipedAtEnd(const WipedAtEnd&) = delete;
    WipedAtEnd& operator=(const WipedAtEnd&) = delete;

private:
    Text& text_;
};

/// A key or password for the agent, in UTF-8. No other copy of it stays behind.
std::string secretToWire(const QString& text);

} // namespace config
