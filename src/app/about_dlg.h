// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QDialog>

#include "app/tarn_client_info_model.h"

namespace Ui {
class AboutDlg;
}

/// What this program is and, during a session, what the agent says about itself.
class AboutDlg : public QDialog {
    Q_OBJECT
public:
    /// Asks the agent, if there is a session. Raises what the call raises.
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
