// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/set_data_type_text.h"

#include <array>

#include <QCoreApplication>

namespace ui {

namespace {

constexpr std::array<const char*, 19> names{
    QT_TRANSLATE_NOOP("getSetDataType", "File System"),
    QT_TRANSLATE_NOOP("getSetDataType", "MS SQL Server"),
    QT_TRANSLATE_NOOP("getSetDataType", "MS Exchange Server"),
    QT_TRANSLATE_NOOP("getSetDataType", "Oracle"),
    QT_TRANSLATE_NOOP("getSetDataType", "Permissions"),
    QT_TRANSLATE_NOOP("getSetDataType", "MS Exchange Email"),
    QT_TRANSLATE_NOOP("getSetDataType", "MS Outlook Email"),
    QT_TRANSLATE_NOOP("getSetDataType", "IBM System i"),
    QT_TRANSLATE_NOOP("getSetDataType", "My SQL"),
    QT_TRANSLATE_NOOP("getSetDataType", "Postgres"),
    QT_TRANSLATE_NOOP("getSetDataType", "DB2"),
    QT_TRANSLATE_NOOP("getSetDataType", "Lotus Notes Email"),
    QT_TRANSLATE_NOOP("getSetDataType", "Groupwise Email"),
    QT_TRANSLATE_NOOP("getSetDataType", "Sharepoint"),
    QT_TRANSLATE_NOOP("getSetDataType", "VMWare"),
    QT_TRANSLATE_NOOP("getSetDataType", "XenServer"),
    QT_TRANSLATE_NOOP("getSetDataType", "Sybase"),
    QT_TRANSLATE_NOOP("getSetDataType", "MS Hyper-V Server"),
    QT_TRANSLATE_NOOP("getSetDataType", "VMWare VADP"),
};

} // namespace

QString getSetDataType(hessiancln::BackupDataType type) {
    const auto number = static_cast<std::size_t>(type);
    return QCoreApplication::translate(
        "getSetDataType", number < names.size()
                              ? names[number]
                              : QT_TRANSLATE_NOOP("getSetDataType", "Unknown Data Type"));
}

} // namespace ui
