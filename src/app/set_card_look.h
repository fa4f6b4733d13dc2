// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPalette>
#include <QPixmap>
#include <QString>

#include "api/backup_set_records.h"

namespace app {

/// How a card shows the state of its backup set.
struct SetCardLook {
    QString icon;    ///< resource
    QString overlay; ///< resource; if set, the icon is greyed under it
    QString styleSheet;
    bool needsEditing = false; ///< a recovered set; the tool tip explains it

    bool operator==(const SetCardLook&) const = default;
};

SetCardLook setCardLook(const hessiancln::backup_set_info& set, bool centrallyManaged);

QPixmap setCardPicture(const SetCardLook& look);

/// The style sheet of the look, on a dark palette with a red that is readable on the card.
QString setCardStyleSheet(const SetCardLook& look, const QPalette& palette, bool selected);

} // namespace app
