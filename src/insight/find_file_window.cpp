// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/find_file_window.h"

#include <algorithm>
#include <utility>

#include <QEvent>
#include <QKeyEvent>
#include <QShortcut>

#include "api/client_connection.h"
#include "insight/copy_rows.h"
#include "models/generation_select_model.h"
#include "session/required.h"
#include "session/text.h"
#include "ui/branding_resources.h"
#include "ui/locale_text.h"
#include "ui/remote_action.h"
#include "ui/select_row.h"
#include "ui/table_columns.h"
#include "ui_find_file_window.h"
#include "wizards/restore_flow.h"
#include "wizards/select_generation_dlg.h"

using session::required;

namespace {

constexpr std::int32_t allSets = -1;

/// The item at the end of a path; no value if it no longer exists. Makes one request per level.
std::optional<std::int64_t> itemAt(hessiancln::BackupSetDataView& view, const QStringList& folders,
                                   const std::string& file) {
    std::int64_t item = -1;
    for (const QString& folder : folders) {
        const auto items = view.getSubItems(item);
        const auto found = std::ranges::find_if(items, [&folder](const auto& one) {
            return !one.is_file && session::fromWire(one.name) == folder;
        });
        if (found == items.end())
            return std::nullopt;
        item = found->id;
    }
    const auto items = view.getSubItems(item);
    const auto found = std::ranges::find_if(
        items, [&file](const auto& one) { return one.is_file && one.name == file; });
    if (found == items.end())
        return std::nullopt;
    return found->id;
}

} // namespace

FindFileWindow::FindFileWindow(Connect connect, QWidget* parent)
    : QDialog(parent)
    , connect_(std::move(connect))
    , ui_(std::make_unique<Ui::FindFileWindow>())
    , slices_([this] { return step(); }) {
    ui_->setupUi(this);
    setWindowIcon(ui::g_branding.applicationIcon());
    setUpTable();
    fillSets();
    QObject::connect(ui_->editName, &QLineEdit::textChanged, this, &FindFileWindow::updateEnabling);
    QObject::connect(ui_->buttonFind, &QPushButton::clicked, this, &FindFileWindow::find);
    QObject::connect(ui_->buttonCancel, &QPushButton::clicked, this, &FindFileWindow::cancel);
    QObject::connect(ui_->buttonGenerations, &QPushButton::clicked, this,
                     &FindFileWindow::showGenerations);
    QObject::connect(ui_->buttonRestore, &QPushButton::clicked, this, &FindFileWindow::restore);
    QObject::connect(ui_->buttonClose, &QPushButton::clicked, this, &FindFileWindow::accept);
    QObject::connect(&slices_, &insight::Slices::progressed, this, &FindFileWindow::showProgress);
    QObject::connect(&slices_, &insight::Slices::finished, this, &FindFileWindow::end);
    showProgress();
}

FindFileWindow::~FindFileWindow() {
    // Releasing the view may wait for the agent, and the window gets events meanwhile. So it must
    // still be complete.
    slices_.stop();
    found_.showSearch(nullptr, {});
    search_.reset();
}

void FindFileWindow::setUpTable() {
    QTableView& table = *ui_->tableFound;
    ui::setUpTable(table, found_);
    insight::copyRows(table);
    QObject::connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
                     &FindFileWindow::updateEnabling);
    QObject::connect(&table, &QTableView::doubleClicked, this, &FindFileWindow::showGenerations);
    // Otherwise the default button would start another search.
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(key, &table, nullptr, nullptr, Qt::WidgetShortcut);
        QObject::connect(shortcut, &QShortcut::activated, this, &FindFileWindow::showGenerations);
    }
}

void FindFileWindow::setSetNames(const insight::SetNames& names) {
    if (names == names_)
        return;
    const bool begins = names_.empty();
    names_ = names;
    if (names_.empty())
        cancel();
    else if (begins)
        forgetFound();
    fillSets();
}

/// Another agent may have other sets under the same ids.
void FindFileWindow::forgetFound() {
    cancel();
    found_.showSearch(nullptr, {});
    search_.reset();
    showProgress();
}

void FindFileWindow::fillSets() {
    const QVariant chosen = ui_->comboSet->currentData();
    ui_->comboSet->clear();
    ui_->comboSet->addItem(tr("All backup sets"), allSets);
    for (const auto& [id, name] : names_)
        ui_->comboSet->addItem(session::fromWire(name), id);
    chooseSet(chosen.isValid() ? chosen.toInt() : allSets);
}

void FindFileWindow::chooseSet(std::int32_t setId) {
    ui_->comboSet->setCurrentIndex(std::max(ui_->comboSet->findData(setId), 0));
    updateEnabling();
}

std::vector<std::int32_t> FindFileWindow::chosenSets() const {
    const int chosen = ui_->comboSet->currentData().toInt();
    if (chosen != allSets)
        return {chosen};
    std::vector<std::int32_t> sets;
    for (const auto& [id, name] : names_)
        sets.push_back(id);
    return sets;
}

insight::FileSearch::View FindFileWindow::openView(std::int32_t setId) const {
    return required(required(connect_()->backup_set(setId))->prepare_restore(0, 0, 0));
}

void FindFileWindow::find() {
    cancelled_ = false;
    found_.showSearch(nullptr, {});
    search_ = std::make_unique<insight::FileSearch>(
        insight::NamePattern(ui_->editName->text()), chosenSets(),
        [this](std::int32_t setId) { return openView(setId); });
    found_.showSearch(search_.get(), names_);
    slices_.start();
    showProgress();
    ui_->buttonCancel->setFocus();
}

bool FindFileWindow::step() {
    search_->step();
    return !search_->isDone();
}

void FindFileWindow::cancel() {
    if (!isSearching())
        return;
    slices_.stop();
    search_->cancel();
    cancelled_ = true;
    end();
}

void FindFileWindow::end() {
    showProgress();
    // For keyboard users: focusing the table doesn't select a row.
    if (!selectedFile() && found_.rowCount() > 0)
        ui::selectRow(*ui_->tableFound, 0);
}

void FindFileWindow::showProgress() {
    found_.update();
    updateEnabling();
    if (!search_) {
        ui_->labelProgress->setText(tr("Type a part of a name, or a pattern with * and ?."));
        return;
    }
    const QString state = isSearching() ? tr("Searching")
                          : cancelled_  ? tr("Cancelled")
                                        : tr("Done");
    QString text = tr("%1: %2 files found in %3 folders")
                       .arg(state, ui::numberText(static_cast<qint64>(search_->found().size())),
                            ui::numberText(static_cast<qint64>(search_->foldersSeen())));
    if (search_->refused() > 0)
        text = tr("%1, %2 could not be read (%3)")
                   .arg(text, ui::numberText(static_cast<qint64>(search_->refused())),
                        session::fromWire(search_->failure()));
    if (search_->isFull())
        text = tr("%1, stopped because there are too many").arg(text);
    ui_->labelProgress->setText(text);
}

void FindFileWindow::updateEnabling() {
    const bool searching = isSearching();
    const bool hasFile = selectedFile() && !names_.empty();
    ui_->buttonFind->setEnabled(!searching && !names_.empty() &&
                                !ui_->editName->text().trimmed().isEmpty());
    ui_->buttonCancel->setEnabled(searching);
    ui_->buttonGenerations->setEnabled(hasFile);
    ui_->buttonRestore->setEnabled(hasFile);
}

const insight::FoundFile* FindFileWindow::selectedFile() const {
    const QModelIndexList rows = ui_->tableFound->selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : &found_.at(rows.first().row());
}

void FindFileWindow::showGenerations() {
    const insight::FoundFile* selected = selectedFile();
    if (!selected || names_.empty())
        return;
    const insight::FoundFile file = *selected;
    const QStringList folders = search_->folderOf(file);
    std::optional<std::vector<hessiancln::file_generations>> generations;
    ui::remoteAction(*this, tr("Error"), ui::Cursor::wait, [&] {
        const auto view = openView(file.setId);
        if (const auto item = itemAt(*view, folders, file.name))
            generations = view->getItemGenerations(*item);
        else
            throw std::runtime_error(session::toWire(tr("The file is no longer stored.")));
    });
    if (!generations)
        return;
    SelectGenerationDlg dialog(*generations, this);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    const auto chosen = dialog.chosenTime();
    if (!accepted || !chosen)
        return;
    const auto same =
        std::ranges::find(*generations, *chosen, &hessiancln::file_generations::backup_time);
    emit restoreRequested(
        file.setId, {folders + QStringList(session::fromWire(file.name)), chosen, same->data_size});
}

void FindFileWindow::restore() {
    const insight::FoundFile* file = selectedFile();
    if (!file)
        return;
    wizards::RestoreFile latest{
        search_->folderOf(*file) + QStringList(session::fromWire(file->name)), {}, {}};
    if (file->generations > 0)
        latest.size = file->newest.data_size;
    emit restoreRequested(file->setId, latest);
}

/// Escape cancels a running search; otherwise it closes the window.
void FindFileWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && isSearching())
        cancel();
    else
        QDialog::keyPressEvent(event);
}

void FindFileWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    ui_->editName->setFocus();
    ui_->editName->selectAll();
}

void FindFileWindow::hideEvent(QHideEvent* event) {
    if (!event->spontaneous())
        cancel();
    QDialog::hideEvent(event);
}

void FindFileWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        fillSets();
        showProgress();
    }
    QDialog::changeEvent(event);
}
