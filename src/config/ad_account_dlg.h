// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QDialog>

namespace config {
struct AdAccountEntries;
}

namespace Ui {
class ADAccountDlg;
}

/// The account with which the agent looks up users in a directory. The agent checks it, and stores
/// it on request. `exec` returns one of the results below.
class ADAccountDlg : public QDialog {
    Q_OBJECT
public:
    enum Result { cancelled, saved, validated };

    explicit ADAccountDlg(QWidget* parent = nullptr);
    ~ADAccountDlg() override;

    void done(int result) override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_btnSave_clicked();
    void on_btnValidate_clicked();
    void on_btnCancel_clicked();

private:
    void read();
    config::AdAccountEntries entries() const;
    /// Returns whether the agent accepted it.
    bool send(bool save);
    void forgetPasswords();

    std::unique_ptr<Ui::ADAccountDlg> ui_;
};
