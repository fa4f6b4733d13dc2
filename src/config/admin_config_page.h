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

/// When the agent's own daily and weekly work runs, with buttons that run it at once and close the
/// wizard.
class AdminConfigPage : public QWizardPage {
    Q_OBJECT
public:
    explicit AdminConfigPage(QWidget* parent = nullptr);
    ~AdminConfigPage() override;

    /// Asks the agent for the times. A failure ends the wizard and goes to the one who runs it.
    void initializePage() override;
    /// Writes the times. Raises what the calls raise.
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
