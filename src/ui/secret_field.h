// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLineEdit>

#include "base/secret.h"
#include "ui/masked_announcements.h"

namespace ui {

/// A field for a password, a key or a code. It wipes its content when it is cleared, replaced or
/// destroyed. Screen readers get the typed text masked, and no notification of changes made by the
/// functions of this class.
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

    const MaskedAnnouncements masked_;
};

} // namespace ui
