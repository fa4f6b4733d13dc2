// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

#include <QDialog>

namespace config {
struct CriEntry;
struct RegistrationEntries;
} // namespace config

namespace hessiancln {
struct tarnc_reg_info;
struct user_info;
} // namespace hessiancln

class QFile;

namespace Ui {
class InitClntCfgDlg;
}

/// The agent's registration with its storage server: customer, account, addresses, encryption keys
/// and some information about the customer. `exec` returns one of the results below.
class InitClntCfgDlg : public QDialog {
    Q_OBJECT
public:
    enum Result { cancelled, saved, registered };

    /// Requests the agent's current data, and throws what the calls throw. `initial` means that the
    /// agent is being set up for the first time, so that each key can be chosen.
    explicit InitClntCfgDlg(bool initial, QWidget* parent = nullptr);
    ~InitClntCfgDlg() override;

    void done(int result) override;

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void on_btnBrowse_clicked();
    void on_btnAdd_clicked();
    void on_btnRemove_clicked();
    void on_cmbPrivateKeyType_currentIndexChanged(int index);
    void on_cmbAccountKeyType_currentIndexChanged(int index);
    void on_btnSave_clicked();
    void on_btnCancel_clicked();

private:
    void setTexts();
    void addCodes();

    void read();
    void showRegistration(hessiancln::tarnc_reg_info& info);
    void showUserInfo(const hessiancln::user_info& info);

    QString chooseCriFile();
    void read(QFile& file);
    bool mayChange(const config::CriEntry& entry) const;
    void take(const config::CriEntry& entry);

    QStringList addresses() const;
    void setAddresses(const std::string& text);
    void setPrivateKey(const std::string& key);
    void setAccountKey(const std::string& key);
    void forgetKeys();

    config::RegistrationEntries entries() const;
    hessiancln::tarnc_reg_info registration() const;
    hessiancln::user_info userInfo() const;
    void write();

    std::unique_ptr<Ui::InitClntCfgDlg> ui_;
    const bool initial_;
};
