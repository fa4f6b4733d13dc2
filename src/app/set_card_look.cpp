// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/set_card_look.h"

#include "ui/grey_overlay_pixmap.h"
#include "ui/readable_colour.h"
#include "ui/shared_icon.h"

namespace app {

namespace {

QString iconOf(const hessiancln::backup_set_info& set, bool centrallyManaged) {
    if (!set.is_created_by_policy)
        return QStringLiteral(":/icons/backup_set_icon.png");
    return centrallyManaged ? QStringLiteral(":/icons/backup_set_lock.png")
                            : QStringLiteral(":/icons/backup_set_unlock.png");
}

} // namespace

SetCardLook setCardLook(const hessiancln::backup_set_info& set, bool centrallyManaged) {
    SetCardLook look;
    look.icon = iconOf(set, centrallyManaged);
    if (!set.in_sync) {
        look.overlay = QStringLiteral(":/icons/overlay_sync.png");
        look.styleSheet = QStringLiteral("QLabel#labelSetName, QLabel#labelAdditionalInfo, "
                                         "QLineEdit { color: red; selection-color: red; }");
    } else if (!set.has_items) {
        look.overlay = QStringLiteral(":/icons/overlay_warning.png");
        look.needsEditing = true;
    }
    return look;
}

QPixmap setCardPicture(const SetCardLook& look) {
    return look.overlay.isEmpty() ? ui::sharedPixmap(look.icon)
                                  : ui::greyOverlayPixmap(look.icon, look.overlay);
}

QString setCardStyleSheet(const SetCardLook& look, const QPalette& palette, bool selected) {
    if (look.styleSheet.isEmpty() || !ui::isDark(palette))
        return look.styleSheet;
    const QPalette::ColorRole behind = selected ? QPalette::Highlight : QPalette::Base;
    return QStringLiteral("QLabel#labelSetName, QLabel#labelAdditionalInfo { color: %1; } "
                          "QLineEdit { color: %2; selection-color: %3; }")
        .arg(ui::readable(Qt::red, palette, behind).name(),
             ui::readable(Qt::red, palette, QPalette::Base).name(),
             ui::readable(Qt::red, palette, QPalette::Highlight).name());
}

} // namespace app
