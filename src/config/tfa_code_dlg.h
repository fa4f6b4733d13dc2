// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include <QDialog>

namespace Ui {
class TFACodeDlg;
}

/// Requests a code by mail from the agent and asks the user for it. It can only be accepted with a
/// code that the agent has verified. Failures are shown and leave it open.
class TFACodeDlg : public QDialog {
    Q_OBJECT
public:
    /// `purpose` is passed to the agent unchanged: 1 to send the list of addresses, 2 for backup
    /// sets and deletions. The first code is requested as soon as the dialog's event loop runs.
    TFACodeDlg(int purpose, QWidget* parent);
    ~TFACodeDlg() override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_btnResend_clicked();
    void on_btnValidate_clicked();

private:
    std::unique_ptr<Ui::TFACodeDlg> ui_;
    const std::int32_t purpose_;
};
