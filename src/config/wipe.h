// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <QString>

class QLineEdit;

/// Takes keys and passwords out of memory. What Qt has copied on its own way stays: the events of
/// the keyboard and what a field has held before.
namespace config {

void wipe(std::string& text);
void wipe(QByteArray& bytes);
/// A text that others share is left to them.
void wipe(QString& text);
/// Empties the field, and overwrites what it held unless somebody else shares it.
void wipe(QLineEdit& field);

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

} // namespace config
