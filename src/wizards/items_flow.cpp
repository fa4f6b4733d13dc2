// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/items_flow.h"

#include <QCoreApplication>
#include <QWizard>

#include "api/backup_set.h"
#include "ui/error_box.h"
#include "ui/wait_cursor.h"
#include "ui/wizard_frame.h"
#include "wizards/items_select_page.h"
#include "wizards/select_data_source_page.h"
#include "wizards/set_options_page.h"

namespace wizards {

namespace {

using Set = boost::shared_ptr<hessiancln::BackupSet>;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
};

class ItemsWizard {
public:
    ItemsWizard(QWidget& parent, const SetFeatures& features);

    /// Returns false if the pages don't support this kind of set.
    bool load(const Set& set, bool hasItems);
    bool run() { return ui::runWizard(wizard_); }
    void apply(const Set& set);

private:
    const SetFeatures features_;
    ui::Wizard wizard_;
    SelectDataSourcePage* source_; ///< owned by the wizard, like all pages
    ItemsSelectPage* items_;
    SetOptionsPage* options_ = nullptr; ///< null if the agent has none
};

ItemsWizard::ItemsWizard(QWidget& parent, const SetFeatures& features)
    : features_(features)
    , wizard_(&parent) {
    ui::frameWizard(wizard_, Texts::tr("Protected Items Wizard"),
                    QStringLiteral(":/images/wizard_items"));
    source_ = new SelectDataSourcePage(&wizard_);
    items_ = new ItemsSelectPage(&wizard_);
}

bool ItemsWizard::load(const Set& set, bool hasItems) {
    if (!(hasItems ? source_->initFromSet(set) : source_->initFromEmptySet(set)))
        return false;
    if (!items_->load(set))
        return false;
    const int sourceId = wizard_.addPage(source_);
    items_->setDataSourcePageId(sourceId);
    wizard_.addPage(items_);
    if (!features_.optionsPage())
        return true;
    options_ = new SetOptionsPage(&wizard_);
    options_->setDataSourcePageId(sourceId);
    if (!options_->load(set))
        return false;
    wizard_.addPage(options_);
    return true;
}

void ItemsWizard::apply(const Set& set) {
    source_->applyCredentials(set);
    items_->apply(set);
    applyOptions(features_, options_, set);
}

} // namespace

void editItems(QWidget& parent, const SetFeatures& features, const Set& set, bool hasItems) {
    ItemsWizard wizard(parent, features);
    if (!wizard.load(set, hasItems)) {
        ui::showError(&parent, Texts::tr("Error"),
                      Texts::tr("This backup set type cannot be edited by this user interface."));
        return;
    }
    if (!wizard.run())
        return;
    const ui::WaitCursor waiting(parent);
    wizard.apply(set);
}

} // namespace wizards
