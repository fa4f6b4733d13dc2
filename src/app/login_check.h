// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QDialog>

class QComboBox;
class QLabel;

namespace Ui {
class LoginCheck;
}

/// The login dialog. It performs the login, and stays open until that has succeeded or the user
/// cancels.
///
/// Its result is the reverse of Qt's convention: 1 is a cancel, 0 everything else. Esc and the
/// title bar's close button return 0 as well, so callers must check `session::connectedToAgent`.
class LoginCheck : public QDialog {
    Q_OBJECT
public:
    /// Asks the agent on this machine for its domains, which may take until a transport times out.
    explicit LoginCheck(QWidget* parent = nullptr);
    ~LoginCheck() override;

    /// The host in the fields, without scheme and port.
    QString host() const;
    /// The user in the fields, with the domain if one is used.
    QString user() const;

public slots:
    void OnQuit();
    void OnLogin();
    void on_chkSSPILogin_clicked(bool checked);

protected:
    void changeEvent(QEvent* event) override;

private:
    QString agentAddress() const;
    void addDomains(const QStringList& domains);
    void retranslateDomains();
    void withoutIntegratedLogon();
    void fitToTexts();

    std::unique_ptr<Ui::LoginCheck> ui_;
    QLabel* labelDomain_ = nullptr;    ///< owned by the group box; null without domains
    QComboBox* comboDomain_ = nullptr; ///< likewise
};
