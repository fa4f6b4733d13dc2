// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

#include <QWizardPage>

namespace hessiancln {
class ClientConfiguration;
}

namespace Ui {
class AdminConfigPage;
}

/// The times of the agent's own daily and weekly tasks, with buttons that run them immediately and
/// close the wizard.
class AdminConfigPage : public QWizardPage {
    Q_OBJECT
public:
    explicit AdminConfigPage(QWidget* parent = nullptr);
    ~AdminConfigPage() override;

    /// Requests the times from the agent. A failure ends the wizard and is rethrown to its caller.
    void initializePage() override;
    /// Writes the times. Throws what the calls throw.
    void save();

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_checkDaily_clicked(bool checked);
    void on_checkWeekly_clicked(bool checked);
    void on_btnDaily_clicked();
    void on_btnWeekly_clicked();

private:
    void read();
    void readWeekly(hessiancln::ClientConfiguration& manager);
    void runNow(const std::function<void(hessiancln::ClientConfiguration& manager)>& start);

    std::unique_ptr<Ui::AdminConfigPage> ui_;
};
