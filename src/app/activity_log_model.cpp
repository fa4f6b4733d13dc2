// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/activity_log_model.h"

#include <array>

#include <QBrush>

#include "api/client_connection.h"
#include "session/connection.h"
#include "session/text.h"
#include "ui/activity_type_text.h"
#include "ui/duration_text.h"
#include "ui/locale_text.h"

namespace {

using R = hessiancln::activity_log_info;
using app::LabelKey;
using app::TableColumn;

constexpr Qt::Alignment centred = Qt::AlignCenter;
constexpr Qt::Alignment right = Qt::AlignRight | Qt::AlignVCenter;

bool hasEnded(const R& record) {
    return record.end_time >= 1;
}

std::int64_t secondsOf(const R& record) {
    return std::int64_t{record.end_time} - record.start_time;
}

QString startText(const R& record) {
    return ui::timeText(record.start_time, QLocale::ShortFormat);
}

QString endText(const R& record) {
    return hasEnded(record) ? ui::timeText(record.end_time, QLocale::ShortFormat) : QString();
}

QString durationText(const R& record) {
    return hasEnded(record) ? ui::formatDuration(secondsOf(record)) : QString();
}

constexpr LabelKey<R> typeKey{
    [](const R& record) { return static_cast<std::int32_t>(record.type); },
    [](const R& record) { return ui::activityTypeLabel(record.type); }};

const std::array<TableColumn<R>, 9> columns{{
    {QT_TRANSLATE_NOOP("ActivityLogModel", "Type"),
     [](const R& record) { return ui::activityTypeLabel(record.type); },
     typeKey,
     {},
     [](const R& record) { return ui::activityTypeIcon(record.type); }},
    {QT_TRANSLATE_NOOP("ActivityLogModel", "Description"),
     [](const R& record) { return session::fromWire(record.description); }, &R::description},
    {QT_TRANSLATE_NOOP("ActivityLogModel", "Errors"),
     [](const R& record) { return ui::numberText(record.errors); },
     [](const R& record) -> std::int64_t { return record.errors; }, centred},
    {QT_TRANSLATE_NOOP("ActivityLogModel", "Warnings"),
     [](const R& record) { return ui::numberText(record.warnings); },
     [](const R& record) -> std::int64_t { return record.warnings; }, centred},
    {QT_TRANSLATE_NOOP("ActivityLogModel", "Start"), startText,
     [](const R& record) -> std::int64_t { return record.start_time; }},
    {QT_TRANSLATE_NOOP("ActivityLogModel", "End"), endText,
     [](const R& record) -> std::int64_t { return record.end_time; }},
    {QT_TRANSLATE_NOOP("ActivityLogModel", "Duration"), durationText, secondsOf},
    {QT_TRANSLATE_NOOP("ActivityLogModel", "Files"),
     [](const R& record) { return ui::numberText(record.file_count); },
     [](const R& record) -> std::int64_t { return record.file_count; }, right},
    {QT_TRANSLATE_NOOP("ActivityLogModel", "Data size"),
     [](const R& record) { return ui::numberText(record.data_size); },
     [](const R& record) { return record.data_size; }, right},
}};

} // namespace

ActivityLogModel::ActivityLogModel(QObject* parent)
    : RecordTableModel(columns, parent) {}

void ActivityLogModel::refresh(std::int32_t from, std::int32_t to) {
    setRecords(session::getConnection()->activity_log(from, to));
}

QVariant ActivityLogModel::rowData(const R& record, int role) const {
    if (role != Qt::ForegroundRole)
        return {};
    if (record.errors >= 1)
        return QBrush(Qt::red);
    if (record.warnings >= 1)
        return QBrush(Qt::darkYellow);
    return {};
}
