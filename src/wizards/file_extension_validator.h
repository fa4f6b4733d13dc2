// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRegExpValidator>

class QLineEdit;

/// Lets nothing but file extensions, separated by bars, into the two fields for them. What it
/// refuses it explains in a tool tip at the field that is shown.
class CFileExtensionValidator : public QRegExpValidator {
    Q_OBJECT
public:
    /// The fields outlive the validator.
    CFileExtensionValidator(const QLineEdit& inclusion, const QLineEdit& exclusion,
                            QObject* parent);

    State validate(QString& text, int& position) const override;

private:
    const QLineEdit& inclusion_;
    const QLineEdit& exclusion_;
};
