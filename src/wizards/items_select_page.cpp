// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/items_select_page.h"

#include <algorithm>

#include <QEvent>
#include <QWizard>

#include "api/backup_set.h"
#include "models/data_source_dir_only_model.h"
#include "models/data_source_model.h"
#include "models/select_display_delegate.h"
#include "session/required.h"
#include "session/text.h"
#include "ui/plain_tool_tip.h"
#include "ui/wait_cursor.h"
#include "ui/wizard_frame.h"
#include "ui_items_select_page.h"
#include "wizards/backup_set_items.h"
#include "wizards/file_extension_validator.h"
#include "wizards/select_data_source_page.h"

using session::required;

/// Everything requested before the page is updated, so that a failure changes nothing.
struct ItemsSelectPage::Contents {
    Source source;
    std::vector<hessiancln::PreDefinedBrowseItem> presets;
    std::unique_ptr<CDataSourceModel> model;
    std::optional<wizards::StoredItems> stored; ///< no value for a new set
};

ItemsSelectPage::ItemsSelectPage(QWidget* parent)
    : QWizardPage(parent)
    , ui_(std::make_unique<Ui::ItemsSelectPage>()) {
    ui_->setupUi(this);
    validator_ = new CFileExtensionValidator(*ui_->editCustomInc, *ui_->editCustomExc, this);
    ui_->editCustomInc->setValidator(validator_);
    ui_->editCustomExc->setValidator(validator_);
    for (const wizards::FileKind& kind : wizards::selectableKinds())
        connect(&boxOf(kind), &QCheckBox::clicked, this, &ItemsSelectPage::completeChanged);
    connect(ui_->treeComputer, &QTreeView::expanded, this, &ItemsSelectPage::treeExpanded);
    showPatterns();
    on_radioSpecificLocation_clicked();
}

ItemsSelectPage::~ItemsSelectPage() = default;

void ItemsSelectPage::showPatterns() {
    for (const wizards::FileKind& kind : wizards::selectableKinds())
        boxOf(kind).setToolTip(wizards::patternsOf(kind));
}

QCheckBox& ItemsSelectPage::boxOf(const wizards::FileKind& kind) const {
    return *findChild<QCheckBox*>(kind.box);
}

void ItemsSelectPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        showPatterns();
        showExclusions();
    }
    QWizardPage::changeEvent(event);
}

/// Includes the tree even while it is hidden.
QSize ItemsSelectPage::largestSize() const {
    QSize size = sizeHint();
    if (ui_->treeComputer->isHidden())
        size.rheight() += ui_->treeComputer->minimumHeight() + ui_->layoutLocations->spacing();
    return size;
}

bool ItemsSelectPage::load(const Set& set) {
    // Over the whole program, because the page isn't visible yet.
    const ui::OverrideCursor busy;
    if (set->getDataType() != hessiancln::BackupDataType::FileSystem)
        return false;
    set_ = set;
    return true;
}

void ItemsSelectPage::apply(const Set& set) {
    const ui::OverrideCursor busy;
    set->setItems(wizards::createItems(*required(source_.browser),
                                       session::toWire(source_.computer), paths(),
                                       wizards::expressionsOf(fileTypes())));
}

void ItemsSelectPage::initializePage() {
    try {
        const ui::WaitCursor waiting(wizard() ? static_cast<QWidget&>(*wizard()) : *this);
        if (const auto source = changedSource())
            showContents(fetch(*source));
    } catch (const std::exception&) {
        ui::failWizard(wizard(), std::current_exception());
    }
}

std::optional<ItemsSelectPage::Source> ItemsSelectPage::changedSource() const {
    if (dataSourcePageId_ < 0) {
        if (!set_)
            return std::nullopt;
        Browser browser = required(set_->dataBrowser());
        return Source{browser, session::fromWire(set_->getComputerName()), {}};
    }
    const auto* page = qobject_cast<SelectDataSourcePage*>(wizard()->page(dataSourcePageId_));
    Source source{page->browser(), page->computerName(), page->connectUser()};
    if (model_ && source.computer == source_.computer && source.connectUser == source_.connectUser)
        return std::nullopt;
    return source;
}

ItemsSelectPage::Contents ItemsSelectPage::fetch(const Source& source) const {
    const std::string computer = session::toWire(source.computer);
    Contents contents{source, source.browser->getPredefinedItems(computer), nullptr, std::nullopt};
    contents.model = std::make_unique<CDataSourceModel>(computer, source.browser);
    // Fetch the top of the tree before the set's items, as if the tree were already shown.
    contents.model->rowCount();
    if (set_)
        contents.stored = wizards::readItems(
            *set_, [&](const models::PathItem& item) { contents.model->markItem(item); });
    return contents;
}

void ItemsSelectPage::showContents(Contents contents) {
    source_ = contents.source;
    showPresets(contents.presets);
    showTree(std::move(contents.model));
    const bool presets = ui_->comboSpecificLocations->count() > 0;
    ui_->frameLocationType->setVisible(presets);
    if (presets)
        chooseSpecificLocation();
    else
        chooseCustomLocation();
    exclusions_ = contents.stored ? contents.stored->exclusions : 0;
    if (contents.stored) {
        showFileTypes(*contents.stored);
        showLocation(contents.stored->inclusions);
    }
    showExclusions();
}

/// A preset is only a path, and replaces all items of the set.
void ItemsSelectPage::showExclusions() {
    ui_->labelExclusions->announce(
        tr("This set leaves out %1 path(s), which can't be shown with a specific location. "
           "Finishing the wizard removes these exclusions.")
            .arg(exclusions_));
    ui_->labelExclusions->setVisible(exclusions_ > 0 && ui_->radioSpecificLocation->isChecked());
}

void ItemsSelectPage::showPresets(const std::vector<hessiancln::PreDefinedBrowseItem>& presets) {
    ui_->comboSpecificLocations->clear();
    for (const hessiancln::PreDefinedBrowseItem& preset : presets)
        ui_->comboSpecificLocations->addItem(session::fromWire(preset.description),
                                             session::fromWire(preset.path));
}

void ItemsSelectPage::showTree(std::unique_ptr<CDataSourceModel> model) {
    auto folders = std::make_unique<CDataSourceDirOnlyModel>(*model);
    if (!delegate_) {
        delegate_ = new CSelectDisplayDelegate(this);
        ui_->treeComputer->setItemDelegate(delegate_);
    }
    ui_->treeComputer->setModel(folders.get());
    ui_->treeComputer->setRootIndex({});
    // The view may still be using the old ones.
    if (folders_)
        folders_.release()->deleteLater();
    if (model_)
        model_.release()->deleteLater();
    model_ = std::move(model);
    folders_ = std::move(folders);
    hadSelection_ = model_->hasSelection();
    connect(model_.get(), &CDataSourceModel::itemSelectionChanged, this,
            &ItemsSelectPage::treeCheckChanged);
}

void ItemsSelectPage::showFileTypes(const wizards::StoredItems& stored) {
    if (stored.customExtensions)
        ui_->editCustomInc->setText(*stored.customExtensions);
    if (stored.excludedExtensions)
        ui_->editCustomExc->setText(*stored.excludedExtensions);
    wizards::FileTypes types;
    wizards::readKinds(stored.kinds, types);
    for (const auto& kinds : {wizards::selectableKinds(), wizards::rejectableKinds()})
        for (const wizards::FileKind& kind : kinds)
            boxOf(kind).setChecked(types.*kind.chosen);
    ui_->checkCustomInc->setChecked(!ui_->editCustomInc->text().isEmpty());
    ui_->checkCustomExc->setChecked(!ui_->editCustomExc->text().isEmpty());
    ui_->checkEverything->setChecked(!anyKind() && !ui_->checkCustomInc->isChecked());
    ui_->editCustomInc->setEnabled(ui_->checkCustomInc->isChecked());
    ui_->editCustomExc->setEnabled(ui_->checkCustomExc->isChecked());
}

void ItemsSelectPage::showLocation(const std::set<std::string>& inclusions) {
    const int preset = inclusions.size() == 1
                           ? ui_->comboSpecificLocations->findData(
                                 session::fromWire(*inclusions.begin()), Qt::UserRole,
                                 Qt::MatchExactly | Qt::MatchCaseSensitive)
                           : -1;
    if (preset < 0) {
        chooseCustomLocation();
        return;
    }
    ui_->comboSpecificLocations->setCurrentIndex(preset);
    chooseSpecificLocation();
}

void ItemsSelectPage::chooseSpecificLocation() {
    ui_->radioSpecificLocation->setChecked(true);
    on_radioSpecificLocation_clicked();
}

void ItemsSelectPage::chooseCustomLocation() {
    ui_->radioCustom->setChecked(true);
    on_radioCustom_clicked();
}

bool ItemsSelectPage::anyKind() const {
    const auto kinds = wizards::selectableKinds();
    return std::any_of(kinds.begin(), kinds.end(),
                       [this](const auto& kind) { return boxOf(kind).isChecked(); });
}

wizards::FileTypes ItemsSelectPage::fileTypes() const {
    wizards::FileTypes types{.everything = ui_->checkEverything->isChecked(),
                             .custom = ui_->checkCustomInc->isChecked(),
                             .customExtensions = ui_->editCustomInc->text(),
                             .excluded = ui_->checkCustomExc->isChecked(),
                             .excludedExtensions = ui_->editCustomExc->text()};
    for (const auto& kinds : {wizards::selectableKinds(), wizards::rejectableKinds()})
        for (const wizards::FileKind& kind : kinds)
            types.*kind.chosen = boxOf(kind).isChecked();
    return types;
}

std::vector<models::PathItem> ItemsSelectPage::paths() const {
    if (ui_->radioSpecificLocation->isChecked())
        return {{session::toWire(ui_->comboSpecificLocations->currentData().toString()), false}};
    return model_->getSelection();
}

bool ItemsSelectPage::isComplete() const {
    const bool custom = ui_->checkCustomInc->isChecked() && !ui_->editCustomInc->text().isEmpty();
    if (!ui_->checkEverything->isChecked() && !anyKind() && !custom)
        return false;
    // There is no location to choose until the agent has listed them.
    if (ui_->radioSpecificLocation->isChecked())
        return ui_->comboSpecificLocations->count() > 0;
    return model_ && model_->hasSelection();
}

void ItemsSelectPage::on_checkEverything_stateChanged(int state) {
    ui_->stackedWidget->setCurrentWidget(state == Qt::Checked ? ui_->frameExclusion
                                                              : ui_->frameInclusion);
    emit completeChanged();
}

void ItemsSelectPage::on_checkCustomInc_clicked(bool checked) {
    ui_->editCustomInc->setEnabled(checked);
    ui_->editCustomInc->setFocus();
    emit completeChanged();
}

void ItemsSelectPage::on_checkCustomExc_clicked(bool checked) {
    ui_->editCustomExc->setEnabled(checked);
    ui_->editCustomExc->setFocus();
    emit completeChanged();
}

void ItemsSelectPage::on_editCustomInc_textChanged() {
    emit completeChanged();
}

void ItemsSelectPage::on_radioSpecificLocation_clicked() {
    showTreeOrNot(false);
}

void ItemsSelectPage::on_radioCustom_clicked() {
    showTreeOrNot(true);
}

void ItemsSelectPage::showTreeOrNot(bool shown) {
    ui_->comboSpecificLocations->setEnabled(!shown);
    ui_->treeComputer->setVisible(shown);
    QSizePolicy policy = ui_->groupLocations->sizePolicy();
    policy.setVerticalStretch(shown ? 1 : 0);
    ui_->groupLocations->setSizePolicy(policy);
    showExclusions();
    emit completeChanged();
}

void ItemsSelectPage::on_comboSpecificLocations_currentIndexChanged(int index) {
    const QString path = ui_->comboSpecificLocations->itemData(index).toString();
    ui_->comboSpecificLocations->setToolTip(ui::plainToolTip(path));
}

/// Called for each of the items below a checked one, and on each page change signal the wizard
/// updates all its buttons.
void ItemsSelectPage::treeCheckChanged() {
    const bool hasSelection = model_->hasSelection();
    if (hasSelection == hadSelection_)
        return;
    hadSelection_ = hasSelection;
    emit completeChanged();
}

void ItemsSelectPage::treeExpanded(const QModelIndex& index) {
    ui_->treeComputer->scrollTo(index, QAbstractItemView::PositionAtTop);
}
