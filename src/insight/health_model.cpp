// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/health_model.h"

#include <array>

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>

#include "insight/insight_texts.h"
#include "session/text.h"
#include "ui/locale_text.h"
#include "ui/readable_colour.h"
#include "ui/shared_icon.h"
#include "ui/size_text.h"

namespace {

using insight::HealthRow;
using insight::HealthState;
using insight::PlannedRun;
using models::RecordColumn;

QString shortTime(std::int64_t seconds) {
    return ui::timeText(seconds, QLocale::ShortFormat);
}

QString stateText(const HealthRow& row) {
    return insight::stateText(row.health.state);
}

QIcon stateIcon(const HealthRow& row) {
    return ui::sharedIcon(insight::stateIcon(row.health.state));
}

QString lastGoodText(const HealthRow& row) {
    const std::int64_t time = row.facts.info.last_successful_backup;
    if (time < 1)
        return row.facts.info.online_file_count > 0 ? BackupHealthModel::tr("Unknown")
                                                    : BackupHealthModel::tr("Never");
    return BackupHealthModel::tr("%1 (%2)", "time and age")
        .arg(shortTime(time), insight::ageText(row.judgedAt - time));
}

QString lastAttemptText(const HealthRow& row) {
    if (const auto& attempt = row.facts.lastAttempt)
        return BackupHealthModel::tr("%1: %2", "time and outcome")
            .arg(shortTime(attempt->start),
                 attempt->end < 1 ? BackupHealthModel::tr("running")
                                  : insight::outcomeText(attempt->errors, attempt->warnings));
    const std::int64_t time = row.facts.info.last_backup;
    return time < 1 ? BackupHealthModel::tr("Never") : shortTime(time);
}

QString nextRunText(const HealthRow& row) {
    if (!insight::isScheduled(row.facts.info))
        return BackupHealthModel::tr("Not scheduled");
    if (row.health.nextStart)
        return shortTime(*row.health.nextStart);
    return row.isRead ? BackupHealthModel::tr("Not known") : BackupHealthModel::tr("Not read yet");
}

QString generationsText(const HealthRow& row) {
    if (!row.isRead || row.leastGenerations < 0)
        return {};
    if (row.leastGenerations == row.mostGenerations)
        return ui::numberText(row.mostGenerations);
    return BackupHealthModel::tr("%1 to %2")
        .arg(ui::numberText(row.leastGenerations), ui::numberText(row.mostGenerations));
}

QString ownerText(const HealthRow& row) {
    return row.facts.info.is_created_by_policy
               ? BackupHealthModel::tr("%1 (policy)")
                     .arg(session::fromWire(row.facts.info.owner_name))
               : session::fromWire(row.facts.info.owner_name);
}

using H = BackupHealthModel;
using N = NextRunsModel;

QString storedText(const HealthRow& row) {
    return ui::sizeToString(static_cast<double>(row.facts.info.tarnsys_compressed_size));
}

constexpr std::array<RecordColumn<HealthRow>, H::columns> healthColumns{{
    {{H::name, QT_TRANSLATE_NOOP("BackupHealthModel", "Backup set"), 160},
     [](const HealthRow& row) { return session::fromWire(row.facts.info.name); }},
    {{H::state, QT_TRANSLATE_NOOP("BackupHealthModel", "State"), 120}, stateText, {}, stateIcon},
    {{H::lastGood, QT_TRANSLATE_NOOP("BackupHealthModel", "Last good backup"), 205}, lastGoodText},
    {{H::lastAttempt, QT_TRANSLATE_NOOP("BackupHealthModel", "Last attempt"), 190},
     lastAttemptText},
    {{H::nextRun, QT_TRANSLATE_NOOP("BackupHealthModel", "Next run"), 110}, nextRunText},
    {{H::storedSize, QT_TRANSLATE_NOOP("BackupHealthModel", "Stored size"), 80, ui::rightInCell},
     storedText},
    {{H::generations, QT_TRANSLATE_NOOP("BackupHealthModel", "Generations"), 85, ui::rightInCell},
     generationsText},
    {{H::owner, QT_TRANSLATE_NOOP("BackupHealthModel", "Made by"), 80}, ownerText},
}};
static_assert(ui::areInOrder(healthColumns));

QString overlapText(const PlannedRun& run) {
    return run.overlaps ? NextRunsModel::tr("with another set") : QString();
}

QIcon overlapIcon(const PlannedRun& run) {
    return run.overlaps ? ui::sharedIcon(QStringLiteral(":/icons/event_warning.png")) : QIcon();
}

constexpr std::array<RecordColumn<PlannedRun>, N::columns> runColumns{{
    {{N::start, QT_TRANSLATE_NOOP("NextRunsModel", "Start"), 110},
     [](const PlannedRun& run) { return shortTime(run.start); }},
    {{N::set, QT_TRANSLATE_NOOP("NextRunsModel", "Backup set"), 125},
     [](const PlannedRun& run) { return session::fromWire(run.name); }},
    {{N::end, QT_TRANSLATE_NOOP("NextRunsModel", "Likely end"), 110},
     [](const PlannedRun& run) { return shortTime(run.end); }},
    {{N::overlap, QT_TRANSLATE_NOOP("NextRunsModel", "Overlap"), 130},
     overlapText,
     {},
     overlapIcon},
}};
static_assert(ui::areInOrder(runColumns));

} // namespace

BackupHealthModel::BackupHealthModel(QObject* parent)
    : RecordTableModel(healthColumns, parent) {}

QVariant BackupHealthModel::rowData(const HealthRow& row, int role) const {
    if (role != Qt::ForegroundRole)
        return {};
    switch (row.health.state) {
    case HealthState::NeverBackedUp:
    case HealthState::Failed:
        return QBrush(ui::readable(Qt::red, QGuiApplication::palette()));
    case HealthState::Overdue:
    case HealthState::NotInSync:
    case HealthState::Recovered:
        return QBrush(ui::readable(Qt::darkYellow, QGuiApplication::palette()));
    case HealthState::Running:
    case HealthState::Safe:
        break;
    }
    return {};
}

NextRunsModel::NextRunsModel(QObject* parent)
    : RecordTableModel(runColumns, parent) {}
