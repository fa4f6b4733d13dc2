// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/tfa_users_viewer.h"

#include <algorithm>

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileDialog>

#include "api/client_connection.h"
#include "config/chosen_file.h"
#include "config/tfa_code_dlg.h"
#include "config/tfa_user_dlg.h"
#include "config/user_email_csv.h"
#include "session/connection.h"
#include "session/required.h"
#include "ui/branding_resources.h"
#include "ui/file_dialog.h"
#include "ui/later.h"
#include "ui/message_box.h"
#include "ui/remote_action.h"
#include "ui/select_row.h"
#include "ui/table_columns.h"
#include "ui_tfa_users_viewer.h"

namespace {

/// The purpose of a code, in the agent's encoding.
constexpr int forwardPurpose = 1;

} // namespace

TFAUsersViewer::TFAUsersViewer(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::TFAUsersViewer>()) {
    ui_->setupUi(this);
    setWindowIcon(ui::g_branding.applicationIcon());
    setUpTable();
    connect(ui_->btnClose, &QPushButton::clicked, this, &TFAUsersViewer::reject);
    // Once the dialog is visible, so that an error box appears in front of it.
    ui::later(*this, [this] { read(); });
}

TFAUsersViewer::~TFAUsersViewer() = default;

void TFAUsersViewer::setUpTable() {
    QTableView& table = *ui_->tableUsers;
    ui::setUpTable(table, model_);
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TFAUsersViewer::updateEnabling);
    connect(table.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &TFAUsersViewer::selectSomeRow);
    // A click with Ctrl deselects the row. Later, since rows lose their selection before they are
    // removed.
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TFAUsersViewer::selectSomeRow, Qt::QueuedConnection);
    connect(&model_, &QAbstractItemModel::modelReset, this, &TFAUsersViewer::updateEnabling);
    connect(&model_, &QAbstractItemModel::modelReset, this, &TFAUsersViewer::selectSomeRow);
    for (const auto change : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&model_, change, this, &TFAUsersViewer::selectSomeRow);
    connect(&table, &QTableView::doubleClicked, this, &TFAUsersViewer::on_btnEdit_clicked);
    updateEnabling();
}

void TFAUsersViewer::read() {
    ui::remoteAction(*this, tr("Error"), ui::Cursor::wait, [this] { model_.refresh(); });
}

int TFAUsersViewer::selectedRow() const {
    const QModelIndexList rows = ui_->tableUsers->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

/// The current row has a frame, so it looks selected even if it isn't, as after the table got the
/// focus.
void TFAUsersViewer::selectSomeRow() {
    if (selectedRow() < 0 && model_.rowCount() > 0)
        ui::selectRow(*ui_->tableUsers, std::max(ui_->tableUsers->currentIndex().row(), 0));
}

void TFAUsersViewer::updateEnabling() {
    const bool selected = selectedRow() >= 0;
    ui_->btnEdit->setEnabled(selected);
    ui_->btnDelete->setEnabled(selected);
}

void TFAUsersViewer::on_btnAdd_clicked() {
    TFAUserDlg dialog({}, this);
    if (dialog.exec() == QDialog::Accepted)
        model_.insert(dialog.userEmail());
}

void TFAUsersViewer::on_btnEdit_clicked() {
    const int row = selectedRow();
    if (row < 0)
        return;
    TFAUserDlg dialog(model_.userEmails().at(static_cast<std::size_t>(row)), this);
    if (dialog.exec() == QDialog::Accepted)
        model_.replace(row, dialog.userEmail());
}

void TFAUsersViewer::on_btnDelete_clicked() {
    const int row = selectedRow();
    if (row >= 0)
        model_.remove(row);
}

void TFAUsersViewer::on_btnImport_clicked() {
    QFileDialog dialog(this, tr("Please choose a .CSV file"), QDir::homePath(),
                       tr("CSV Files (*.csv)"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    ui::adaptFileDialog(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QFile file(config::firstFileEndingIn(QLatin1String(".csv"), dialog.selectedFiles()));
    if (!file.fileName().isEmpty())
        ui::remoteAction(*this, tr("Configuration Error"), ui::Cursor::wait, [&] { read(file); });
}

void TFAUsersViewer::read(QFile& file) {
    if (!config::openChosen(file, QIODevice::Text))
        return;
    config::UserEmailList list = config::readUserEmails(file);
    model_.insert(list.rows);
    ui_->labImport->announce(
        tr("Users imported: %1. Lines skipped: %2.").arg(list.lines.taken).arg(list.lines.skipped));
    ui_->labImport->show();
}

void TFAUsersViewer::on_btnUpdate_clicked() {
    TFACodeDlg code(forwardPurpose, this);
    if (code.exec() != QDialog::Accepted)
        return;
    const bool sent = ui::remoteAction(*this, tr("Configuration Error"), ui::Cursor::wait, [this] {
        session::required(session::getConnection()->getTFAManager())
            ->setUserEmails(model_.userEmails());
    });
    if (sent)
        ui::showInformation(this, tr("Forward to Tarn-System"),
                            tr("User email list is successfully sent to Tarn-System."));
}

void TFAUsersViewer::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QDialog::changeEvent(event);
}
