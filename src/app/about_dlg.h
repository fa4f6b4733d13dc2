// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QDialog>

#include "app/tarn_client_info_model.h"

namespace Ui {
class AboutDlg;
}

/// Information about this program and, during a session, about the agent.
class AboutDlg : public QDialog {
    Q_OBJECT
public:
    /// Queries the agent if there is a session. Throws what the call throws.
    explicit AboutDlg(QWidget* parent = nullptr);
    ~AboutDlg() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void setTexts();
    void setUpInformation();

    std::unique_ptr<Ui::AboutDlg> ui_;
    TarnClientInfoModel model_;
};
