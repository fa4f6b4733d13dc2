// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include <QDialog>

#include "insight/health_model.h"

namespace Ui {
class BackupHealthWindow;
}

/// The health of all sets, worst first, with reasons and remedies, and their next runs. Watches the
/// monitor while it is open.
class BackupHealthWindow : public QDialog {
    Q_OBJECT
public:
    /// The commands available for a set.
    struct Allowed {
        bool backup = false;
        bool sync = false;
    };
    using AllowedOf = std::function<Allowed(const insight::HealthRow&)>;

    /// The monitor must outlive the window.
    BackupHealthWindow(insight::HealthMonitor& monitor, AllowedOf allowedOf,
                       QWidget* parent = nullptr);
    ~BackupHealthWindow() override;

signals:
    void backupRequested(std::int32_t setId);
    void syncRequested(std::int32_t setId);
    /// Requests the events of an activity, or for id 0 those of the last days.
    void eventsRequested(const insight::BackupAttempt& attempt);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void setUpTables();
    void setUpButtons();
    void showRows();
    void showRuns();
    void showProgress();
    void showSelected();
    void showWeek();
    void fillWeeks();
    void select(std::int32_t setId);
    /// Null without a selection.
    const insight::HealthRow* selectedRow() const;

    insight::HealthMonitor& monitor_;
    AllowedOf allowedOf_;
    std::unique_ptr<Ui::BackupHealthWindow> ui_;
    BackupHealthModel sets_;
    NextRunsModel runs_;
    bool isRefilling_ = false;    ///< selection changes aren't the user's
    bool keepsSelection_ = false; ///< the user has selected a set, or all sets have been read
};
