// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QDialog>

#include "base/secret.h"

namespace Ui {
class CSSHConnectAsDlg;
}

/// Asks how to log in by SSH: with a password or with an identity file. Both pages share user and
/// secret. Initially shows a mask for the secret, and can't be confirmed until one is typed.
class CSSHConnectAsDlg : public QDialog {
    Q_OBJECT
public:
    explicit CSSHConnectAsDlg(const QString& user, QWidget* parent = nullptr);
    ~CSSHConnectAsDlg() override;

    /// True for a password, false for an identity file.
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
