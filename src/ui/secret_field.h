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
/// Qt notes each edit for an undo. This field gives the notes their room beforehand and writes over
/// them, up to `roomForEdits` edits. What stays behind is named in CONTRIBUTING.md.
class SecretField : public QLineEdit {
    Q_OBJECT
public:
    static constexpr int roomForEdits = 256;

    explicit SecretField(QWidget* parent = nullptr);
    ~SecretField() override;

    /// What the field holds, in UTF-8.
    base::Secret secret() const;

    /// Emits `textChanged` as `setText` does.
    void setSecret(const std::string& utf8);

    void wipe();

private:
    void replace(const QString& text);
};

} // namespace ui
