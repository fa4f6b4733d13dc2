// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/restore_flow.h"

#include <stdexcept>

#include <QCoreApplication>
#include <QWizard>

#include "api/backup_set.h"
#include "session/text.h"
#include "ui/message_box.h"
#include "ui/wizard_frame.h"
#include "wizards/restore_directory_destination.h"
#include "wizards/restore_location_page.h"
#include "wizards/restore_select_page.h"
#include "wizards/select_data_source_page.h"

namespace wizards {

namespace {

using Activity = boost::shared_ptr<hessiancln::GenericActivity>;
using Set = boost::shared_ptr<hessiancln::BackupSet>;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
};

class RestoreWizard {
public:
    RestoreWizard(QWidget& parent, const Set& set);

    RestorePages pages(const hessiancln::backup_set_status& status);
    bool run();
    Activity restore();

private:
    ui::Wizard wizard_;
    RestoreSelectPage* items_; ///< owned by the wizard, like all pages
    RestoreLocationPage* location_;
    SelectDataSourcePage* source_;
    RestoreDirectoryDestination* directory_;
};

RestoreWizard::RestoreWizard(QWidget& parent, const Set& set)
    : wizard_(&parent) {
    ui::frameWizard(wizard_, Texts::tr("Restore Data"), QStringLiteral(":/images/wizard_restore"));
    wizard_.addPage(items_ = new RestoreSelectPage(set, &wizard_));
    location_ = new RestoreLocationPage(set, &wizard_);
    const int locationId = wizard_.addPage(location_);
    // The account of the agent isn't offered here to any user.
    source_ = new SelectDataSourcePage([](const std::string&) { return false; }, &wizard_);
    location_->setDataSourcePageId(wizard_.addPage(source_));
    directory_ = new RestoreDirectoryDestination(&wizard_);
    location_->setDirectoryPageId(wizard_.addPage(directory_));
    source_->initForRestore(set);
    directory_->setLocationPageId(locationId);
}

RestorePages RestoreWizard::pages(const hessiancln::backup_set_status& status) {
    return {wizard_, *items_, *location_, *source_, *directory_, status};
}

bool RestoreWizard::run() {
    ui::allowAnySize(wizard_);
    return ui::runWizard(wizard_);
}

Activity RestoreWizard::restore() {
    const auto initiator = items_->prepareRestore();
    return initiator ? location_->start(*initiator) : nullptr;
}

} // namespace

std::optional<Activity> restoreFromSet(QWidget& parent, const Set& set,
                                       const std::function<void(const RestorePages&)>& prepare,
                                       const std::optional<RestoreFile>& file) {
    const auto status = set->getCurrentStatus();
    if (status.on_line_file_count == 0) {
        ui::showInformation(&parent, Texts::tr("No data backed up"),
                            Texts::tr("The selected backup set has no backed up data."));
        return std::nullopt;
    }
    RestoreWizard wizard(parent, set);
    const RestorePages pages = wizard.pages(status);
    if (prepare)
        prepare(pages);
    if (file && !pages.items.tick(*file))
        throw std::runtime_error(session::toWire(Texts::tr("The file is no longer stored.")));
    if (!wizard.run())
        return std::nullopt;
    return wizard.restore();
}

} // namespace wizards
