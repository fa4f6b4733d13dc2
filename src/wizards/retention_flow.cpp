// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/retention_flow.h"

#include <QCoreApplication>
#include <QWizard>

#include "api/backup_set.h"
#include "ui/wizard_frame.h"
#include "wizards/confirm_by_code.h"
#include "wizards/retention_select_page.h"
#include "wizards/retention_task.h"

namespace wizards {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
};

} // namespace

bool editRetention(QWidget& parent, const boost::shared_ptr<hessiancln::BackupSet>& set) {
    ui::Wizard wizard(&parent);
    ui::frameWizard(wizard, Texts::tr("Retention Rule Wizard"),
                    QStringLiteral(":/images/wizard_retention"));
    auto* page = new RetentionSelectPage(&wizard);
    wizard.addPage(page);
    page->load(set);
    if (!ui::runWizard(wizard) || !confirmByCode(parent))
        return false;
    page->apply(set);
    syncRetentionTask(*set);
    return true;
}

} // namespace wizards
