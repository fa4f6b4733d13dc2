// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/restore_reasons.h"

#include <QCoreApplication>

namespace wizards {

namespace {

constexpr char context[] = "RestoreLocationPage";

} // namespace

QString RestoreReason::shownText() const {
    return QCoreApplication::translate(context, text);
}

const std::array<RestoreReason, restoreReasonCount>& restoreReasons() {
    using Code = RestoreReasonCode;
    static constexpr std::array<RestoreReason, restoreReasonCount> reasons{{
        {QT_TRANSLATE_NOOP("RestoreLocationPage", "Human Factor"), Code::Heading},
        {QT_TRANSLATE_NOOP("RestoreLocationPage", "    Device lost or stolen"), Code::DeviceLost},
        {QT_TRANSLATE_NOOP("RestoreLocationPage", "    User error/Accidental Data Deletion"),
         Code::AccidentalDeletion},
        {QT_TRANSLATE_NOOP("RestoreLocationPage", "    User data deletion - malicious intent"),
         Code::MaliciousDeletion},
        {QT_TRANSLATE_NOOP("RestoreLocationPage", "    Data stolen"), Code::DataStolen},
        {QT_TRANSLATE_NOOP("RestoreLocationPage",
                           "    Access to a previous generation of the data"),
         Code::PreviousGeneration},
        {QT_TRANSLATE_NOOP("RestoreLocationPage", "Internal cause"), Code::Heading},
        {QT_TRANSLATE_NOOP("RestoreLocationPage", "    Data loss - Hardware malfunction"),
         Code::HardwareMalfunction},
        {QT_TRANSLATE_NOOP("RestoreLocationPage", "    Data loss - Software malfunction"),
         Code::SoftwareMalfunction},
        {QT_TRANSLATE_NOOP("RestoreLocationPage", "External cause"), Code::Heading},
        {QT_TRANSLATE_NOOP("RestoreLocationPage", "    Natural disasters"), Code::NaturalDisaster},
        {QT_TRANSLATE_NOOP("RestoreLocationPage", "    Power outages"), Code::PowerOutage},
    }};
    return reasons;
}

} // namespace wizards
