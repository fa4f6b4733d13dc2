// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPixmap>
#include <QString>

#include "api/backup_set_records.h"

namespace app {

/// How the state of a backup set shows on its card.
struct SetCardLook {
    QString icon;    ///< resource
    QString overlay; ///< resource; if there is one, the icon is greyed under it
    QString styleSheet;
    bool needsEditing = false; ///< a recovered set, which the tool tip explains

    bool operator==(const SetCardLook&) const = default;
};

SetCardLook setCardLook(const hessiancln::backup_set_info& set, bool centrallyManaged);

QPixmap setCardPicture(const SetCardLook& look);

} // namespace app
