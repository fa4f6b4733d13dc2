// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QDialog>

#include "config/tfa_users_model.h"

class QFile;

namespace Ui {
class TFAUsersViewer;
}

/// The list of users and the addresses that their codes are sent to. Changes stay in the table
/// until they are forwarded, which requires a code; closing the dialog discards them. Failures are
/// shown, never thrown.
class TFAUsersViewer : public QDialog {
    Q_OBJECT
public:
    /// The list is read as soon as the dialog's event loop runs.
    explicit TFAUsersViewer(QWidget* parent = nullptr);
    ~TFAUsersViewer() override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_btnAdd_clicked();
    void on_btnEdit_clicked();
    void on_btnDelete_clicked();
    void on_btnImport_clicked();
    void on_btnUpdate_clicked();

private:
    void setUpTable();
    void read();
    void read(QFile& file);
    int selectedRow() const;
    void selectSomeRow();
    void updateEnabling();

    std::unique_ptr<Ui::TFAUsersViewer> ui_;
    TFAUsersModel model_;
};
