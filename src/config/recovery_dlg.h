// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QDialog>

namespace Ui {
class RecoveryDlg;
}

/// Recovers what the agent has lost: sets that only the storage server still knows, or the whole
/// database of its history. The constructor requests such sets from the agent, and throws what the
/// calls throw.
class RecoveryDlg : public QDialog {
    Q_OBJECT
public:
    explicit RecoveryDlg(QWidget* parent = nullptr);
    ~RecoveryDlg() override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_buttonBox_accepted();

private:
    void setTexts();
    void recoverOrphanedSets();
    void recoverDatabase();

    std::unique_ptr<Ui::RecoveryDlg> ui_;
    std::size_t orphans_ = 0;
};
