// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/set_details_text.h"

#include <QCoreApplication>

#include "ui/locale_text.h"
#include "ui/set_data_type_text.h"
#include "ui/size_text.h"

namespace app {

using hessiancln::backup_set_overview_info;
using hessiancln::ScheduleDetailType;

namespace {

class Texts {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
public:
    static QString lastBackup(std::int32_t startTime, std::int32_t files);
    static QString schedule(const backup_set_overview_info& overview);
    static QString retention(const backup_set_overview_info& overview);
};

QString Texts::lastBackup(std::int32_t startTime, std::int32_t files) {
    if (startTime >= 1)
        return ui::timeText(startTime, QLocale::ShortFormat);
    return files != 0 ? tr("UNKNOWN") : tr("Never backed up");
}

QString Texts::schedule(const backup_set_overview_info& overview) {
    if (overview.schedule_id < 0)
        return tr("Not Scheduled");
    switch (overview.schedule_type) {
    case ScheduleDetailType::Weekly:
        return tr("Daily");
    case ScheduleDetailType::Monthly:
        return tr("Monthly");
    }
    return tr("Custom");
}

QString Texts::retention(const backup_set_overview_info& overview) {
    if (overview.retention_rule_id >= 1)
        return tr("Time-based");
    if (overview.min_gen == -1)
        return tr("No items");
    if (overview.min_gen != overview.max_gen)
        return tr("%1 to %2 generations").arg(overview.min_gen).arg(overview.max_gen);
    return tr("%1 generation(s)").arg(overview.min_gen);
}

} // namespace

SetDetails setDetails(const hessiancln::activity_log_info& lastBackup,
                      const backup_set_overview_info& overview) {
    const hessiancln::backup_set_status& status = overview.status;
    return {
        Texts::lastBackup(lastBackup.start_time, status.on_line_file_count),
        ui::numberText(status.on_line_file_count),
        ui::sizeToString(static_cast<double>(status.on_line_data_size)),
        ui::getSetDataType(overview.data_type),
        Texts::schedule(overview),
        Texts::retention(overview),
    };
}

} // namespace app
