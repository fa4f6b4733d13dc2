// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/schedule_flow.h"

#include <QCoreApplication>
#include <QWizard>

#include "api/backup_set.h"
#include "ui/wizard_frame.h"
#include "wizards/retention_task.h"
#include "wizards/schedule_select_page.h"

namespace wizards {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
};

} // namespace

bool editSchedule(QWidget& parent, const boost::shared_ptr<hessiancln::BackupSet>& set) {
    ui::Wizard wizard(&parent);
    ui::frameWizard(wizard, Texts::tr("Schedule Wizard"),
                    QStringLiteral(":/images/wizard_schedule"));
    auto* page = new ScheduleSelectPage(&wizard);
    wizard.addPage(page);
    page->load(set);
    if (!ui::runWizard(wizard))
        return false;
    page->apply(set);
    syncRetentionTask(*set);
    return true;
}

} // namespace wizards
