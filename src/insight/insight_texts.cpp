// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/insight_texts.h"

#include <QCoreApplication>
#include <QStringList>

#include "ui/activity_type_text.h"
#include "ui/locale_text.h"
#include "ui/size_text.h"

namespace insight {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Insight)
};

constexpr std::int64_t minute = 60;
constexpr std::int64_t hour = 60 * minute;
constexpr std::int64_t day = 24 * hour;

QString counted(std::int64_t count, const QString& one, const QString& many) {
    return count == 1 ? one : many.arg(ui::numberText(count));
}

QString errorsText(std::int32_t errors) {
    return counted(errors, Texts::tr("1 error"), Texts::tr("%1 errors"));
}

QString warningsText(std::int32_t warnings) {
    return counted(warnings, Texts::tr("1 warning"), Texts::tr("%1 warnings"));
}

QString failedHelp(const SetFacts& facts, const SetHealth& health) {
    if (health.reason == HealthReason::hasErrors)
        return Texts::tr("The last backup ended with %1, so some files may not be stored as they "
                         "are now. Look at its events, fix the cause and back up again.")
            .arg(errorsText(facts.lastAttempt->errors));
    return Texts::tr("The last backup did not succeed. Look at the events, fix the cause and back "
                     "up again.");
}

QString overdueHelp(const SetFacts& facts, const SetHealth& health, const HealthClock& clock) {
    if (health.reason == HealthReason::missedStart && clock.missedHours == 1)
        return Texts::tr("The last scheduled backup did not run, and the hour in which the agent "
                         "makes up for it is over. Back up now, and check whether the computer is "
                         "on at the scheduled time.");
    if (health.reason == HealthReason::missedStart)
        return Texts::tr("The last scheduled backup did not run, and the %1 hours in which the "
                         "agent makes up for it are over. Back up now, and check whether the "
                         "computer is on at the scheduled time.")
            .arg(clock.missedHours);
    return Texts::tr("The last good backup is %1 old, which is more than two intervals of the "
                     "schedule. Back up now, and check whether the computer is on at the "
                     "scheduled time.")
        .arg(roughDuration(clock.now - facts.info.last_successful_backup));
}

QString safeHelp(const SetFacts& facts, const SetHealth& health) {
    if (!isScheduled(facts.info))
        return Texts::tr("The last backup succeeded. The set has no schedule: back it up when its "
                         "data has changed.");
    if (!health.isSettled)
        return Texts::tr("The last backup succeeded. The schedule has not been read yet, so "
                         "nothing says whether a backup is overdue.");
    return Texts::tr("The last backup succeeded, and the next one follows by schedule.");
}

QString helpBeneath(const SetFacts& facts, const SetHealth& health, const HealthClock& clock) {
    switch (health.beneath) {
    case HealthState::NeverBackedUp:
        return health.reason == HealthReason::noSuccess
                   ? Texts::tr("No backup of this set has succeeded yet, so nothing can be "
                               "restored. Look at the events, fix the cause and back up again.")
                   : Texts::tr("Nothing of this set is stored yet, so nothing can be restored. "
                               "Back up now.");
    case HealthState::Failed:
        return failedHelp(facts, health);
    case HealthState::Overdue:
        return overdueHelp(facts, health, clock);
    case HealthState::NotInSync:
        return Texts::tr("The agent and the storage server disagree on what is stored, and until "
                         "they agree the set is not backed up. Synchronize it.");
    case HealthState::Recovered:
        return Texts::tr("This set was recovered and has no items, so nothing new is backed up. "
                         "Edit its items, schedule and retention.");
    case HealthState::Running:
    case HealthState::Safe:
        break;
    }
    return safeHelp(facts, health);
}

QString speedText(const Pace& pace) {
    if (pace.bytesPerSecond && *pace.bytesPerSecond > 0)
        return Texts::tr("%1/s", "a size in one second")
            .arg(ui::sizeToString(*pace.bytesPerSecond));
    if (pace.filesPerSecond && *pace.filesPerSecond > 0)
        return Texts::tr("%1 files/s")
            .arg(QLocale::system().toString(*pace.filesPerSecond, 'f', 1));
    return {};
}

} // namespace

QString stateText(HealthState state) {
    switch (state) {
    case HealthState::NeverBackedUp:
        return Texts::tr("Never backed up");
    case HealthState::Failed:
        return Texts::tr("Failed");
    case HealthState::Overdue:
        return Texts::tr("Overdue");
    case HealthState::NotInSync:
        return Texts::tr("Not in sync");
    case HealthState::Recovered:
        return Texts::tr("Recovered");
    case HealthState::Running:
        return Texts::tr("Running");
    case HealthState::Safe:
        break;
    }
    return Texts::tr("Safe");
}

QString stateIcon(HealthState state) {
    switch (state) {
    case HealthState::NeverBackedUp:
    case HealthState::Failed:
        return QStringLiteral(":/icons/event_error.png");
    case HealthState::Overdue:
    case HealthState::Recovered:
        return QStringLiteral(":/icons/event_warning.png");
    case HealthState::NotInSync:
        return QStringLiteral(":/icons/activity_sync.png");
    case HealthState::Running:
        return QStringLiteral(":/icons/activity_backup.png");
    case HealthState::Safe:
        break;
    }
    return QStringLiteral(":/icons/health_safe.png");
}

QString roughDuration(std::int64_t seconds) {
    if (seconds >= day)
        return counted(seconds / day, Texts::tr("1 day"), Texts::tr("%1 days"));
    if (seconds >= hour)
        return counted(seconds / hour, Texts::tr("1 hour"), Texts::tr("%1 hours"));
    if (seconds >= minute)
        return counted(seconds / minute, Texts::tr("1 minute"), Texts::tr("%1 minutes"));
    return Texts::tr("less than a minute");
}

QString ageText(std::int64_t seconds) {
    if (seconds < minute)
        return Texts::tr("just now");
    if (seconds >= day)
        return counted(seconds / day, Texts::tr("1 day ago"), Texts::tr("%1 days ago"));
    if (seconds >= hour)
        return counted(seconds / hour, Texts::tr("1 hour ago"), Texts::tr("%1 hours ago"));
    return counted(seconds / minute, Texts::tr("1 minute ago"), Texts::tr("%1 minutes ago"));
}

QString outcomeText(std::int32_t errors, std::int32_t warnings) {
    QStringList parts;
    if (errors > 0)
        parts.append(errorsText(errors));
    if (warnings > 0)
        parts.append(warningsText(warnings));
    return parts.isEmpty() ? Texts::tr("no errors") : parts.join(QStringLiteral(", "));
}

QString helpText(const SetFacts& facts, const SetHealth& health, const HealthClock& clock) {
    if (!facts.isRunning)
        return helpBeneath(facts, health, clock);
    const QString running = Texts::tr("The agent is working on this set.");
    return needsAttention(health) ? Texts::tr("%1 Until it is done: %2")
                                        .arg(running, helpBeneath(facts, health, clock))
                                  : running;
}

QString summaryText(const HealthCount& count) {
    if (count.sets == 0)
        return Texts::tr("No backup sets");
    if (count.attention > 0)
        return count.sets == 1 ? Texts::tr("The backup set needs attention")
               : count.attention == 1
                   ? Texts::tr("1 of %1 sets needs attention").arg(count.sets)
                   : Texts::tr("%1 of %2 sets need attention").arg(count.attention).arg(count.sets);
    if (count.unsettled > 0)
        return counted(count.sets, Texts::tr("1 set, no failure"),
                       Texts::tr("%1 sets, no failures"));
    return count.sets == 1 ? Texts::tr("The backup set is safe")
                           : Texts::tr("All %1 sets are safe").arg(count.sets);
}

QString summaryIcon(const HealthCount& count) {
    if (count.attention > 0)
        return QStringLiteral(":/icons/event_warning.png");
    return count.unsettled > 0 || count.sets == 0 ? QStringLiteral(":/icons/event_info.png")
                                                  : stateIcon(HealthState::Safe);
}

QString paceText(const Pace& pace) {
    if (pace.idleFor >= minute)
        return Texts::tr("no progress for %1 min").arg(pace.idleFor / minute);
    QString speed = speedText(pace);
    if (speed.isEmpty() || !pace.secondsLeft)
        return speed;
    return Texts::tr("%1, %2 left").arg(speed, roughDuration(*pace.secondsLeft));
}

QString endedText(const hessiancln::activity_log_info& ended, const QString& what) {
    const QString label = ui::activityTypeLabel(ended.type);
    const QString outcome = outcomeText(ended.errors, ended.warnings);
    return what.isEmpty() ? Texts::tr("%1 ended with %2").arg(label, outcome)
                          : Texts::tr("%1 of '%2' ended with %3").arg(label, what, outcome);
}

} // namespace insight
