// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/new_set_flow.h"

#include <QCoreApplication>
#include <QWizard>

#include "api/checked_cast.h"
#include "api/client_connection.h"
#include "api/data_browser_with_set_creation.h"
#include "session/connection.h"
#include "session/required.h"
#include "session/text.h"
#include "ui/wait_cursor.h"
#include "ui/wizard_frame.h"
#include "wizards/confirm_by_code.h"
#include "wizards/items_select_page.h"
#include "wizards/retention_select_page.h"
#include "wizards/retention_task.h"
#include "wizards/schedule_select_page.h"
#include "wizards/select_data_source_page.h"
#include "wizards/set_features.h"
#include "wizards/set_name_page.h"
#include "wizards/set_options_page.h"

namespace wizards {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
};

class NewSetWizard {
public:
    NewSetWizard(QWidget& parent, const SetFeatures& features);

    bool run();
    NewSet createSet();

private:
    boost::shared_ptr<hessiancln::BackupSet> createEmptySet();

    const SetFeatures features_;
    ui::Wizard wizard_;
    SelectDataSourcePage* source_; ///< owned by the wizard, like all pages
    ItemsSelectPage* items_;
    SetOptionsPage* options_ = nullptr; ///< null if the agent has none
    ScheduleSelectPage* schedule_;
    RetentionSelectPage* retention_;
    SetNamePage* name_;
};

NewSetWizard::NewSetWizard(QWidget& parent, const SetFeatures& features)
    : features_(features)
    , wizard_(&parent) {
    ui::frameWizard(wizard_, Texts::tr("New Backup Set"), QStringLiteral(":/images/wizard_newset"));
    source_ = new SelectDataSourcePage(&wizard_);
    const int sourceId = wizard_.addPage(source_);
    items_ = new ItemsSelectPage(&wizard_);
    items_->setDataSourcePageId(sourceId);
    wizard_.addPage(items_);
    if (features_.optionsPage()) {
        options_ = new SetOptionsPage(&wizard_);
        options_->setDataSourcePageId(sourceId);
        wizard_.addPage(options_);
    }
    wizard_.addPage(schedule_ = new ScheduleSelectPage(&wizard_));
    wizard_.addPage(retention_ = new RetentionSelectPage(&wizard_));
    wizard_.addPage(name_ = new SetNamePage(&wizard_));
}

bool NewSetWizard::run() {
    ui::allowAnySize(wizard_);
    return ui::runWizard(wizard_);
}

boost::shared_ptr<hessiancln::BackupSet> NewSetWizard::createEmptySet() {
    const auto browser =
        hessiancln::checkedCast<hessiancln::DataBrowserWithSetCreation>(source_->browser());
    return session::required(browser->createBackupSet(session::toWire(source_->computerName())));
}

NewSet NewSetWizard::createSet() {
    const auto set = createEmptySet();
    name_->apply(set);
    items_->apply(set);
    applyOptions(features_, options_, set);
    session::getConnection()->addBackupSet(set);
    schedule_->apply(set);
    retention_->apply(set);
    syncRetentionTask(*set);
    return {set->getID(), name_->name()};
}

} // namespace

std::optional<NewSet> createBackupSet(QWidget& parent) {
    NewSetWizard wizard(parent, readSetFeatures());
    if (!wizard.run() || !confirmByCode(parent))
        return std::nullopt;
    const ui::WaitCursor waiting(parent);
    return wizard.createSet();
}

} // namespace wizards
