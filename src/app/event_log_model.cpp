// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/event_log_model.h"

#include <array>

#include "api/client_connection.h"
#include "session/connection.h"
#include "session/text.h"
#include "ui/locale_text.h"
#include "ui/shared_icon.h"

namespace {

using M = EventLogModel;
using R = hessiancln::event_log_info;
using models::Cell;
using models::CellLabel;
using models::CellNumber;
using models::CellTime;
using models::LabelKey;
using models::RecordColumn;

struct Severity {
    const char* label;
    const char* icon;
};

constexpr std::array<Severity, 3> severities{{
    {QT_TRANSLATE_NOOP("EventLogModel", "Info"), ":/icons/event_info.png"},
    {QT_TRANSLATE_NOOP("EventLogModel", "Warn"), ":/icons/event_warning.png"},
    {QT_TRANSLATE_NOOP("EventLogModel", "Err"), ":/icons/event_error.png"},
}};

constexpr std::array<const char*, 14> categories{
    QT_TRANSLATE_NOOP("EventLogModel", "Application"),
    QT_TRANSLATE_NOOP("EventLogModel", "Socket"),
    QT_TRANSLATE_NOOP("EventLogModel", "Message"),
    QT_TRANSLATE_NOOP("EventLogModel", "Database"),
    QT_TRANSLATE_NOOP("EventLogModel", "Exception"),
    QT_TRANSLATE_NOOP("EventLogModel", "I/O"),
    QT_TRANSLATE_NOOP("EventLogModel", "Operating System"),
    QT_TRANSLATE_NOOP("EventLogModel", "Security"),
    QT_TRANSLATE_NOOP("EventLogModel", "MAPI"),
    QT_TRANSLATE_NOOP("EventLogModel", "Novell"),
    QT_TRANSLATE_NOOP("EventLogModel", "Oracle"),
    QT_TRANSLATE_NOOP("EventLogModel", "RMAN"),
    QT_TRANSLATE_NOOP("EventLogModel", "XML"),
    QT_TRANSLATE_NOOP("EventLogModel", "DB2"),
};

QString unknownLabel() {
    return QStringLiteral("???");
}

QString typeLabel(const R& record) {
    const auto number = static_cast<std::size_t>(record.type);
    return number < severities.size() ? EventLogModel::tr(severities[number].label)
                                      : unknownLabel();
}

QIcon typeIcon(const R& record) {
    const auto number = static_cast<std::size_t>(record.type);
    return ui::sharedIcon(QLatin1String(number < severities.size() ? severities[number].icon
                                                                   : ":/icons/icon_unknown.png"));
}

QString categoryLabel(const R& record) {
    const auto number = static_cast<std::size_t>(record.category);
    return number < categories.size() ? EventLogModel::tr(categories[number]) : unknownLabel();
}

/// Large numbers are operating system codes, which users know in hexadecimal.
QString eventNumberText(const R& record) {
    if (record.event_id <= 0xffffff)
        return ui::numberText(record.event_id);
    return QStringLiteral("0x%1").arg(record.event_id, 8, 16, QLatin1Char('0'));
}

constexpr LabelKey<R> typeKey{
    [](const R& record) { return static_cast<std::int32_t>(record.type); }, typeLabel};
constexpr LabelKey<R> categoryKey{
    [](const R& record) { return static_cast<std::int32_t>(record.category); }, categoryLabel};

Cell numberCell(const R& record) {
    // There are few different hexadecimal texts.
    return record.event_id <= 0xffffff ? Cell(CellNumber{record.event_id})
                                       : Cell(CellLabel{record.event_id});
}

constexpr std::array<RecordColumn<R>, M::columns> columnTable{{
    {{M::type, QT_TRANSLATE_NOOP("EventLogModel", "Type"), 60},
     typeLabel,
     typeKey,
     typeIcon,
     [](const R& record) -> Cell { return CellLabel{static_cast<std::int32_t>(record.type)}; }},
    {{M::time, QT_TRANSLATE_NOOP("EventLogModel", "Time"), 220},
     [](const R& record) { return ui::timeText(record.when, QLocale::LongFormat); },
     [](const R& record) -> std::int64_t { return record.when; },
     nullptr,
     [](const R& record) -> Cell {
         return CellTime{record.when, QLocale::LongFormat};
     }},
    {{M::user, QT_TRANSLATE_NOOP("EventLogModel", "User"), 80},
     [](const R& record) { return session::fromWire(record.user); },
     &R::user,
     nullptr,
     [](const R& record) -> Cell { return record.user; }},
    {{M::category, QT_TRANSLATE_NOOP("EventLogModel", "Category"), 100},
     categoryLabel,
     categoryKey,
     nullptr,
     [](const R& record) -> Cell { return CellLabel{static_cast<std::int32_t>(record.category)}; }},
    {{M::eventNumber, QT_TRANSLATE_NOOP("EventLogModel", "Event #"), 80, ui::rightInCell},
     eventNumberText,
     [](const R& record) -> std::int64_t { return record.event_id; },
     nullptr,
     numberCell},
    {{M::activity, QT_TRANSLATE_NOOP("EventLogModel", "Activity"), 80, ui::rightInCell},
     [](const R& record) { return ui::numberText(record.activity_id); },
     [](const R& record) -> std::int64_t { return record.activity_id; },
     nullptr,
     [](const R& record) -> Cell { return CellNumber{record.activity_id}; }},
    {{M::detail, QT_TRANSLATE_NOOP("EventLogModel", "Detail"), 80},
     [](const R& record) { return session::fromWire(record.extra_info); },
     &R::extra_info,
     nullptr,
     [](const R& record) -> Cell { return record.extra_info; }},
    {{M::description, QT_TRANSLATE_NOOP("EventLogModel", "Description"), 1500},
     [](const R& record) { return session::fromWire(record.description); },
     &R::description,
     nullptr,
     [](const R& record) -> Cell { return record.description; }},
}};
static_assert(ui::areInOrder(columnTable));

} // namespace

EventLogModel::EventLogModel(QObject* parent)
    : RecordTableModel(columnTable, parent) {}

QStringList EventLogModel::typeLabels() {
    QStringList labels;
    for (const Severity& severity : severities)
        labels << tr(severity.label);
    return labels;
}

QStringList EventLogModel::categoryLabels() {
    QStringList labels;
    for (const char* category : categories)
        labels << tr(category);
    return labels;
}

void EventLogModel::refresh(std::int32_t from, std::int32_t to, std::int32_t activityId) {
    setRecords(session::getConnection()->event_log(from, to, activityId));
}
