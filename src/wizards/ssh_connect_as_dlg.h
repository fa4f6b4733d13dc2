// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QDialog>

#include "base/secret.h"

namespace Ui {
class CSSHConnectAsDlg;
}

/// Asks how to log in by SSH: with a password or with an identity file. User and secret are the
/// same on both pages. It starts with a mask where the secret is, and can't be confirmed before
/// one was typed.
class CSSHConnectAsDlg : public QDialog {
    Q_OBJECT
public:
    explicit CSSHConnectAsDlg(const QString& user, QWidget* parent = nullptr);
    ~CSSHConnectAsDlg() override;

    /// With a password, not with an identity file.
    bool usesPassword() const;
    QString user() const;
    base::Secret password() const;
    QString identityUser() const;
    /// The path of the identity file on the agent's computer.
    QString identityFile() const;
    base::Secret passphrase() const;

public slots:
    void UpdateFieldVisibility();
    void PasswordEdited();

protected:
    void changeEvent(QEvent* event) override;

private:
    void mirrorFields();

    std::unique_ptr<Ui::CSSHConnectAsDlg> ui_;
};
