// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/select_generation_dlg.h"

#include <QEvent>

#include "models/generation_select_model.h"
#include "ui/branding_resources.h"
#include "ui/table_columns.h"
#include "ui_select_generation_dlg.h"

SelectGenerationDlg::SelectGenerationDlg(const models::Generations& generations, QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::SelectGenerationDlg>())
    , model_(std::make_unique<CGenerationSelectModel>(generations)) {
    ui_->setupUi(this);
    setWindowIcon(ui::g_branding.applicationIcon());
    setUpTable();
    connect(ui_->buttonSelect, &QPushButton::clicked, this, &SelectGenerationDlg::accept);
    connect(ui_->buttonClose, &QPushButton::clicked, this, &SelectGenerationDlg::reject);
    updateEnabling();
}

SelectGenerationDlg::~SelectGenerationDlg() = default;

void SelectGenerationDlg::setUpTable() {
    QTableView& table = *ui_->listGenerations;
    ui::setUpTable(table, *model_);
    table.resizeRowsToContents();
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SelectGenerationDlg::updateEnabling);
}

void SelectGenerationDlg::updateEnabling() {
    ui_->buttonSelect->setEnabled(ui_->listGenerations->selectionModel()->hasSelection());
}

std::optional<std::int32_t> SelectGenerationDlg::chosenTime() const {
    const QModelIndexList rows = ui_->listGenerations->selectionModel()->selectedRows();
    if (rows.isEmpty())
        return std::nullopt;
    return model_->generationAt(rows.first()).backup_time;
}

void SelectGenerationDlg::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QDialog::changeEvent(event);
}
