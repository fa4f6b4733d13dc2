// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QDialog>

#include "base/secret.h"

namespace Ui {
class CSSHSudoCredentials;
}

/// Asks which user to become after a login by SSH, if any.
class CSSHSudoCredentials : public QDialog {
    Q_OBJECT
public:
    /// `user`: the present one; empty if nobody is to become.
    explicit CSSHSudoCredentials(const QString& user, QWidget* parent = nullptr);
    ~CSSHSudoCredentials() override;

    /// The dialog was accepted with nobody to become; the fields don't count then.
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
