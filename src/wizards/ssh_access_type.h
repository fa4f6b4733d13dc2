// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QDialog>

#include "api/backup_set_credentials.h"

namespace Ui {
class CSSHAccessType;
}

/// Asks what to run on a computer that the agent accesses by SSH.
class CSSHAccessType : public QDialog {
    Q_OBJECT
public:
    /// Initially shows the credentials' values. Throws what their calls throw.
    explicit CSSHAccessType(hessiancln::UnixFS_SSH_BackupSetCredentials& credentials,
                            QWidget* parent = nullptr);
    ~CSSHAccessType() override;

    hessiancln::SSHAccessType type() const;
    /// Path of the interpreter or of the script; may be empty except for a script.
    QString path() const;

public slots:
    void OkPressed();

protected:
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<Ui::CSSHAccessType> ui_;
};
