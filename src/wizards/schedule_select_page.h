// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include <QWizardPage>

#include <boost/shared_ptr.hpp>

class QCheckBox;
class QRadioButton;

namespace Ui {
class ScheduleSelectPage;
}

namespace hessiancln {
class BackupSet;
class Schedule;
class ScheduleDetail;
class ScheduleManager;
} // namespace hessiancln

namespace wizards {
struct StopTime;
}

/// When a backup set is backed up: not at all, on days of the week or on a day of the month. Each
/// set gets a schedule of its own, so that no other set is touched. One value here is the agent's
/// and not the set's: how late a missed schedule may still run.
class ScheduleSelectPage : public QWizardPage {
    Q_OBJECT
public:
    using Set = boost::shared_ptr<hessiancln::BackupSet>;

    /// Asks the agent for what its defaults depend on; exceptions go to the caller.
    explicit ScheduleSelectPage(QWidget* parent = nullptr);
    ~ScheduleSelectPage() override;

    /// Shows the schedule of the set. Exceptions of the remote calls go to the caller.
    void load(const Set& set);
    /// Writes what is chosen, and makes the set active. Exceptions of the remote calls go to the
    /// caller, and what was written before them stays.
    void apply(const Set& set);

    bool isComplete() const override;

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void on_radioNotScheduled_clicked();
    void on_radioDaily_clicked();
    void on_radioMonthly_clicked();
    void on_checkStop_clicked(bool checked);
    void on_checkOccurEvery_clicked(bool checked);
    void on_comboStopInDays_currentIndexChanged(int index);
    void on_timeStart_timeChanged();
    void on_timeStop_timeChanged();

private:
    using SchedulePointer = boost::shared_ptr<hessiancln::Schedule>;
    using DetailPointer = boost::shared_ptr<hessiancln::ScheduleDetail>;

    QRadioButton* checkedKind() const;
    void setDefaults();
    void loadDays(const DetailPointer& detail);
    void loadTimes(hessiancln::ScheduleDetail& detail);
    void applySchedule(hessiancln::BackupSet& set);
    void write(hessiancln::ScheduleManager& manager, hessiancln::Schedule& schedule);
    DetailPointer createDetail(hessiancln::ScheduleManager& manager) const;
    void writeTimes(hessiancln::ScheduleDetail& detail) const;
    void showTimes(QWidget& days);
    void switchOccurEveryOff();
    std::array<QCheckBox*, 7> dayBoxes() const;
    std::int32_t days() const;
    void setDays(std::int32_t mask);
    wizards::StopTime stopTime() const;

    std::unique_ptr<Ui::ScheduleSelectPage> ui_;
};
