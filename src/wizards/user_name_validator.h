// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRegExpValidator>

class QWidget;

/// The name of a user, optionally with a domain in front. Refuses invalid input with a tool tip
/// that explains why.
class CUserNameValidator : public QRegExpValidator {
    Q_OBJECT
public:
    /// `edit`, the validator's parent, shows the tool tip.
    explicit CUserNameValidator(QWidget* edit);

    State validate(QString& input, int& position) const override;

private:
    QWidget* edit_;
};
