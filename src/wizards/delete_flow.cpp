// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/delete_flow.h"

#include <QCoreApplication>
#include <QMessageBox>

#include "api/backup_set.h"
#include "wizards/confirm_by_code.h"
#include "wizards/set_removal.h"

namespace wizards {

namespace {

using Activity = boost::shared_ptr<hessiancln::GenericActivity>;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
};

bool confirmsRemoval(QWidget& parent) {
    // No is what the Return key says: nothing brings a set back.
    return QMessageBox::question(&parent, Texts::tr("Delete Backup Set?"),
                                 Texts::tr("The selected backup set has no files. Would you like "
                                           "to remove the backup set?"),
                                 QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}

} // namespace

std::optional<Activity> deleteFromSet(QWidget& parent,
                                      const boost::shared_ptr<hessiancln::BackupSet>& set) {
    if (set->getCurrentStatus().on_line_file_count != 0)
        return std::nullopt;
    if (!confirmsRemoval(parent) || !confirmByCode(parent))
        return std::nullopt;
    return removeSet(set);
}

} // namespace wizards
