// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/activity_log_model.h"

#include <array>

#include <QBrush>
#include <QGuiApplication>

#include "api/client_connection.h"
#include "session/connection.h"
#include "session/text.h"
#include "ui/activity_type_text.h"
#include "ui/duration_text.h"
#include "ui/locale_text.h"
#include "ui/readable_colour.h"

namespace {

using M = ActivityLogModel;
using R = hessiancln::activity_log_info;
using models::Cell;
using models::CellLabel;
using models::CellNumber;
using models::CellTime;
using models::LabelKey;
using models::RecordColumn;

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

Cell startCell(const R& record) {
    return CellTime{record.start_time, QLocale::ShortFormat};
}

Cell endCell(const R& record) {
    return hasEnded(record) ? Cell(CellTime{record.end_time, QLocale::ShortFormat}) : Cell();
}

Cell durationCell(const R& record) {
    return hasEnded(record) ? Cell(CellLabel{secondsOf(record)}) : Cell();
}

constexpr std::array<RecordColumn<R>, M::columns> columnTable{{
    {{M::type, QT_TRANSLATE_NOOP("ActivityLogModel", "Type"), 150},
     [](const R& record) { return ui::activityTypeLabel(record.type); },
     typeKey,
     [](const R& record) { return ui::activityTypeIcon(record.type); },
     [](const R& record) -> Cell { return CellLabel{static_cast<std::int32_t>(record.type)}; }},
    {{M::description, QT_TRANSLATE_NOOP("ActivityLogModel", "Description"), 280},
     [](const R& record) { return session::fromWire(record.description); },
     &R::description,
     nullptr,
     [](const R& record) -> Cell { return record.description; }},
    {{M::errors, QT_TRANSLATE_NOOP("ActivityLogModel", "Errors"), 60, Qt::AlignCenter},
     [](const R& record) { return ui::numberText(record.errors); },
     [](const R& record) -> std::int64_t { return record.errors; },
     nullptr,
     [](const R& record) -> Cell { return CellNumber{record.errors}; }},
    {{M::warnings, QT_TRANSLATE_NOOP("ActivityLogModel", "Warnings"), 80, Qt::AlignCenter},
     [](const R& record) { return ui::numberText(record.warnings); },
     [](const R& record) -> std::int64_t { return record.warnings; },
     nullptr,
     [](const R& record) -> Cell { return CellNumber{record.warnings}; }},
    {{M::start, QT_TRANSLATE_NOOP("ActivityLogModel", "Start"), 140},
     startText,
     [](const R& record) -> std::int64_t { return record.start_time; },
     nullptr,
     startCell},
    {{M::end, QT_TRANSLATE_NOOP("ActivityLogModel", "End"), 140},
     endText,
     [](const R& record) -> std::int64_t { return record.end_time; },
     nullptr,
     endCell},
    {{M::duration, QT_TRANSLATE_NOOP("ActivityLogModel", "Duration"), 120},
     durationText,
     secondsOf,
     nullptr,
     durationCell},
    {{M::files, QT_TRANSLATE_NOOP("ActivityLogModel", "Files"), 60, ui::rightInCell},
     [](const R& record) { return ui::numberText(record.file_count); },
     [](const R& record) -> std::int64_t { return record.file_count; },
     nullptr,
     [](const R& record) -> Cell { return CellNumber{record.file_count}; }},
    {{M::dataSize, QT_TRANSLATE_NOOP("ActivityLogModel", "Data size"), 100, ui::rightInCell},
     [](const R& record) { return ui::numberText(record.data_size); },
     [](const R& record) { return record.data_size; },
     nullptr,
     [](const R& record) -> Cell { return CellNumber{record.data_size}; }},
}};
static_assert(ui::areInOrder(columnTable));

} // namespace

ActivityLogModel::ActivityLogModel(QObject* parent)
    : RecordTableModel(columnTable, parent) {}

void ActivityLogModel::refresh(std::int32_t from, std::int32_t to) {
    setRecords(session::getConnection()->activity_log(from, to));
}

QVariant ActivityLogModel::rowData(const R& record, int role) const {
    if (role != Qt::ForegroundRole)
        return {};
    if (record.errors >= 1)
        return QBrush(ui::readable(Qt::red, QGuiApplication::palette()));
    if (record.warnings >= 1)
        return QBrush(ui::readable(Qt::darkYellow, QGuiApplication::palette()));
    return {};
}
