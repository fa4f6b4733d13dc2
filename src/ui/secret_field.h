// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLineEdit>

#include "base/secret.h"

namespace ui {

/// A field for a password, a key or a code, which wipes what it held when it is emptied, filled
/// again or goes. To screen readers it announces what a user types in the characters that it shows,
/// and nothing of what the functions of this class do.
///
/// Qt records each edit for undo. This field allocates the history in advance and overwrites it, up
/// to `roomForEdits` edits. CONTRIBUTING.md lists what remains in memory.
class SecretField : public QLineEdit {
    Q_OBJECT
public:
    static constexpr int roomForEdits = 256;

    explicit SecretField(QWidget* parent = nullptr);
    ~SecretField() override;

    /// The content of the field, in UTF-8.
    base::Secret secret() const;

    /// Emits `textChanged` as `setText` does.
    void setSecret(const std::string& utf8);

    void wipe();

private:
    void replace(const QString& text);
};

} // namespace ui
