// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRegExpValidator>

class QWidget;

/// The name of a user, with or without a domain in front. What can't become one is refused with a
/// tool tip that says why.
class CUserNameValidator : public QRegExpValidator {
    Q_OBJECT
public:
    /// `edit`, the validator's parent, is where the tool tip appears.
    explicit CUserNameValidator(QWidget* edit);

    State validate(QString& input, int& position) const override;

private:
    QWidget* edit_;
};
