// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/activity_type_text.h"

#include <array>

#include <QCoreApplication>

#include "ui/shared_icon.h"

namespace ui {

namespace {

struct TypeRow {
    const char* label;
    const char* icon;
};

constexpr const char* unknownIcon = ":/icons/icon_unknown.png";

constexpr std::array<TypeRow, 21> types{{
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Backup"), ":/icons/activity_backup.png"},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "CDP Backup"), ":/icons/activity_backup.png"},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Restore"), ":/icons/activity_restore.png"},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Daily Admin"), ":/icons/activity_admin.png"},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Weekly Admin"), ":/icons/activity_admin.png"},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Delete"), ":/icons/activity_delete.png"},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Recovery"), unknownIcon},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Synchronization"), ":/icons/activity_sync.png"},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Disk/Tape Request"), unknownIcon},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Disk/Tape Restore"), unknownIcon},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Orlop Request"), unknownIcon},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "On-Line File Summary"), unknownIcon},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Registration"), unknownIcon},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "LAN Discovery"), unknownIcon},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Orlop Restore"), unknownIcon},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Validation"), unknownIcon},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Retention"), unknownIcon},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Tape Conversion"), unknownIcon},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Cache Copy"), unknownIcon},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "Cache Monitor"), unknownIcon},
    {QT_TRANSLATE_NOOP("activityTypeLabel", "App Auto Upgrade"), unknownIcon},
}};

constexpr TypeRow unknownType{QT_TRANSLATE_NOOP("activityTypeLabel", "Unknown activity type"),
                              unknownIcon};

const TypeRow& rowOf(hessiancln::ActivityType type) {
    const auto number = static_cast<std::size_t>(type);
    return number < types.size() ? types[number] : unknownType;
}

} // namespace

QString activityTypeLabel(hessiancln::ActivityType type) {
    return QCoreApplication::translate("activityTypeLabel", rowOf(type).label);
}

QIcon activityTypeIcon(hessiancln::ActivityType type) {
    return sharedIcon(QLatin1String(rowOf(type).icon));
}

} // namespace ui
