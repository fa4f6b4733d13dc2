// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/delete_flow.h"

#include <QCoreApplication>
#include <QWizard>

#include "api/backup_set.h"
#include "ui/message_box.h"
#include "ui/wizard_frame.h"
#include "wizards/confirm_by_code.h"
#include "wizards/delete_select_page.h"
#include "wizards/set_removal.h"

namespace wizards {

namespace {

using Activity = boost::shared_ptr<hessiancln::GenericActivity>;
using Set = boost::shared_ptr<hessiancln::BackupSet>;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
};

bool confirmsRemoval(QWidget& parent) {
    return ui::confirms(&parent, Texts::tr("Delete Backup Set?"),
                        Texts::tr("The selected backup set has no files. Would you like "
                                  "to remove the backup set?"));
}

std::optional<Activity> runWizard(QWidget& parent, const Set& set) {
    ui::Wizard wizard(&parent);
    ui::frameWizard(wizard, Texts::tr("Delete from backup set"),
                    QStringLiteral(":/images/wizard_delete"));
    auto* page = new DeleteSelectPage(set, &wizard);
    wizard.addPage(page);
    ui::allowAnySize(wizard);
    if (!ui::runWizard(wizard))
        return std::nullopt;
    return page->finish(parent);
}

std::optional<Activity> removeEmptySet(QWidget& parent, const Set& set) {
    if (!confirmsRemoval(parent) || !confirmByCode(parent))
        return std::nullopt;
    return removeSet(set);
}

} // namespace

std::optional<Activity> deleteFromSet(QWidget& parent, const Set& set) {
    return set->getCurrentStatus().on_line_file_count == 0 ? removeEmptySet(parent, set)
                                                           : runWizard(parent, set);
}

} // namespace wizards
