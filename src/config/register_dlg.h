// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QDialog>

namespace Ui {
class RegisterDlg;
}

/// The agent's registration with its storage server, and a button to register it again. The
/// constructor queries the agent, and throws what the calls throw.
class RegisterDlg : public QDialog {
    Q_OBJECT
public:
    explicit RegisterDlg(QWidget* parent = nullptr);
    ~RegisterDlg() override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_btnRegister_clicked();

private:
    void showStatus(const QString& text);

    std::unique_ptr<Ui::RegisterDlg> ui_;
};
