// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/running_activities_model.h"

#include <array>

#include <QDateTime>

#include "api/client_connection.h"
#include "app/running_activity_progress.h"
#include "insight/insight_texts.h"
#include "session/connection.h"
#include "session/text.h"
#include "ui/activity_type_text.h"
#include "ui/locale_text.h"

namespace {

using M = RunningActivitiesModel;
using R = hessiancln::running_activity_info;
using models::LabelKey;
using models::RecordColumn;

QString typeLabel(const R& record) {
    return ui::activityTypeLabel(record.type);
}

constexpr LabelKey<R> typeKey{
    [](const R& record) { return static_cast<std::int32_t>(record.type); }, typeLabel};

constexpr std::array<RecordColumn<R>, M::columns> columnTable{{
    {{M::type, QT_TRANSLATE_NOOP("RunningActivitiesModel", "Type"), 130},
     typeLabel,
     typeKey,
     [](const R& record) { return ui::activityTypeIcon(record.type); }},
    {{M::startTime, QT_TRANSLATE_NOOP("RunningActivitiesModel", "Start Time"), 140},
     [](const R& record) { return ui::timeText(record.start_time, QLocale::ShortFormat); },
     [](const R& record) -> std::int64_t { return record.start_time; }},
    {{M::userName, QT_TRANSLATE_NOOP("RunningActivitiesModel", "User Name"), 120},
     [](const R& record) { return session::fromWire(record.user); },
     &R::user},
    {{M::progress, QT_TRANSLATE_NOOP("RunningActivitiesModel", "Progress"), 320},
     app::progressText},
    {{M::description, QT_TRANSLATE_NOOP("RunningActivitiesModel", "Description"), 450},
     [](const R& record) { return session::fromWire(record.description); },
     &R::description},
}};
static_assert(ui::areInOrder(columnTable));

/// Converts text of the agent for use in rich text.
QString rich(const std::string& text) {
    return session::fromWire(text).toHtmlEscaped();
}

QString toolTip(const R& record) {
    QString text = QStringLiteral("<html><h3>%1</h3><table>").arg(typeLabel(record));
    text += RunningActivitiesModel::tr("<tr><td><b>Start:</b></td> <td>%1</<td></tr>")
                .arg(ui::timeText(record.start_time, QLocale::LongFormat));
    if (!record.status_msg.empty())
        text += RunningActivitiesModel::tr("<tr><td><b>Status:</b></td> <td>%1</<td></tr>")
                    .arg(rich(record.status_msg));
    if (!record.process_dir.empty())
        text += RunningActivitiesModel::tr("<tr><td><b>Directory:</b></td><td>%1</<td></tr>")
                    .arg(rich(record.process_dir));
    return text + QStringLiteral("</table></html>");
}

} // namespace

std::int64_t RunningActivitiesModel::systemClock() {
    return QDateTime::currentSecsSinceEpoch();
}

RunningActivitiesModel::RunningActivitiesModel(QObject* parent, Clock clock)
    : RecordTableModel(columnTable, parent)
    , clock_(std::move(clock)) {}

void RunningActivitiesModel::refresh() {
    setActivities(session::getConnection()->running_activities());
}

void RunningActivitiesModel::setActivities(std::vector<R> activities) {
    reportChanges(activities);
    pace_.observe(activities, clock_());
    setRecords(std::move(activities));
}

void RunningActivitiesModel::reportChanges(const std::vector<R>& activities) {
    if (skipComparison_) {
        skipComparison_ = false;
        return;
    }
    const auto changes = app::compareRunningActivities(activities, records(), knownIds_, clock_());
    if (!changes.appeared.isEmpty() || !changes.disappeared.isEmpty())
        emit activityChangeDetected(changes.appeared, changes.disappeared);
    knownIds_ = app::idsOf(activities);
}

void RunningActivitiesModel::clear() {
    RecordTableModel::clear();
    knownIds_.clear();
    pace_ = {};
    skipComparison_ = true;
}

bool RunningActivitiesModel::hasActivityOnSet(std::int32_t setId) const {
    return std::any_of(records().begin(), records().end(),
                       [setId](const R& record) { return record.set_id == setId; });
}

QVariant RunningActivitiesModel::data(const QModelIndex& index, int role) const {
    QVariant value = RecordTableModel::data(index, role);
    if (index.column() != progress || (role != Qt::ToolTipRole && role != Qt::AccessibleTextRole) ||
        !checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return value;
    const auto pace = pace_.of(at(index.row()).activity_id);
    const QString text = pace ? insight::paceText(*pace) : QString();
    if (text.isEmpty())
        return value;
    if (role == Qt::ToolTipRole)
        return QString(value.toString() + QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()));
    return QString(index.data().toString() + QStringLiteral(", ") + text);
}

QVariant RunningActivitiesModel::rowData(const R& record, int role) const {
    return role == Qt::ToolTipRole ? QVariant(toolTip(record)) : QVariant();
}
