// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QDialog>

#include "api/user_email.h"

namespace Ui {
class TFAUserDlg;
}

/// One user in the list of addresses. It can only be accepted with a valid row.
class TFAUserDlg : public QDialog {
    Q_OBJECT
public:
    explicit TFAUserDlg(const hessiancln::user_email& row, QWidget* parent = nullptr);
    ~TFAUserDlg() override;

    /// The row in the fields.
    hessiancln::user_email userEmail() const;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_btnOK_clicked();

private:
    std::unique_ptr<Ui::TFAUserDlg> ui_;
};
