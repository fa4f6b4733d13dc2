// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRegExpValidator>

class QLineEdit;

/// Restricts two fields to file extensions separated by bars. Explains a refusal in a tool tip at
/// the visible field.
class CFileExtensionValidator : public QRegExpValidator {
    Q_OBJECT
public:
    /// The fields must outlive the validator.
    CFileExtensionValidator(const QLineEdit& inclusion, const QLineEdit& exclusion,
                            QObject* parent);

    State validate(QString& text, int& position) const override;

private:
    const QLineEdit& inclusion_;
    const QLineEdit& exclusion_;
};
