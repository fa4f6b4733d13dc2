// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QDialog>

#include "base/secret.h"

namespace Ui {
class CEnterSimpleUserPsw;
}

/// Asks for a user and a password. Initially shows a mask for the password, and can't be confirmed
/// until a password is typed.
class CEnterSimpleUserPsw : public QDialog {
    Q_OBJECT
public:
    explicit CEnterSimpleUserPsw(const QString& user, QWidget* parent = nullptr);
    ~CEnterSimpleUserPsw() override;

    QString user() const;
    base::Secret password() const;

public slots:
    void PasswordChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<Ui::CEnterSimpleUserPsw> ui_;
};
