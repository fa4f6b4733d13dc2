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

/// When a backup set is backed up: never, on days of the week or on a day of the month. Each set
/// gets its own schedule, so that no other set is affected. One value here belongs to the agent
/// rather than the set: how late a missed schedule may still run.
class ScheduleSelectPage : public QWizardPage {
    Q_OBJECT
public:
    using Set = boost::shared_ptr<hessiancln::BackupSet>;

    /// Queries the agent for its defaults; exceptions propagate.
    explicit ScheduleSelectPage(QWidget* parent = nullptr);
    ~ScheduleSelectPage() override;

    /// Shows the schedule of the set. Exceptions of the remote calls propagate.
    void load(const Set& set);
    /// Writes the settings and activates the set. Exceptions of the remote calls propagate, and
    /// completed writes aren't rolled back.
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
