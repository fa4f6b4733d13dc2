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

/// How all sets are, worst first, why, and what to do about it; and when they run next. While it
/// is open the monitor is watched.
class BackupHealthWindow : public QDialog {
    Q_OBJECT
public:
    /// What a set allows now.
    struct Allowed {
        bool backup = false;
        bool sync = false;
    };
    using AllowedOf = std::function<Allowed(const insight::HealthRow&)>;

    /// The monitor has to outlive the window.
    BackupHealthWindow(insight::HealthMonitor& monitor, AllowedOf allowedOf,
                       QWidget* parent = nullptr);
    ~BackupHealthWindow() override;

signals:
    void backupRequested(std::int32_t setId);
    void syncRequested(std::int32_t setId);
    /// The events of an activity, or with id 0 those of the last days.
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
    /// Null if none is selected.
    const insight::HealthRow* selectedRow() const;

    insight::HealthMonitor& monitor_;
    AllowedOf allowedOf_;
    std::unique_ptr<Ui::BackupHealthWindow> ui_;
    BackupHealthModel sets_;
    NextRunsModel runs_;
    bool isRefilling_ = false; ///< the selection isn't the user's
    bool hasChosen_ = false;   ///< the user has selected a set
};
