// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QDialog>

#include "base/secret.h"

namespace Ui {
class CSSHSudoCredentials;
}

/// Asks which user to switch to after a login by SSH, if any.
class CSSHSudoCredentials : public QDialog {
    Q_OBJECT
public:
    /// `user`: the current one; empty without a user switch.
    explicit CSSHSudoCredentials(const QString& user, QWidget* parent = nullptr);
    ~CSSHSudoCredentials() override;

    /// Whether the dialog was accepted without a user switch; the fields are then ignored.
    bool noSudo() const { return noSudo_; }
    QString user() const;
    base::Secret password() const;

public slots:
    void PasswordEdited();
    void NoSuDoClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<Ui::CSSHSudoCredentials> ui_;
    bool noSudo_ = false;
};
