// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/recovery_dlg.h"

#include <QEvent>

#include "api/client_connection.h"
#include "session/connection.h"
#include "session/required.h"
#include "ui/branding_resources.h"
#include "ui/message_box.h"
#include "ui/remote_action.h"
#include "ui/screen_fit.h"
#include "ui/standard_buttons.h"
#include "ui_recovery_dlg.h"

namespace {

/// The only available kind of recovery.
constexpr int wholeDatabase = 0;

auto activityManager() {
    return session::required(session::getConnection()->getSystemActivityManager());
}

} // namespace

RecoveryDlg::RecoveryDlg(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::RecoveryDlg>()) {
    ui_->setupUi(this);
    ui::letContentScroll(*this, *ui_->buttonBox);
    setWindowIcon(ui::g_branding.applicationIcon());
    ui::setStandardButtonPictures(*this);
    // Connected after the form's slots, so that the work is done before the dialog closes.
    connect(ui_->buttonBox, &QDialogButtonBox::accepted, this, &RecoveryDlg::accept);
    connect(ui_->buttonBox, &QDialogButtonBox::rejected, this, &RecoveryDlg::reject);

    orphans_ = activityManager()->getOrphanedbackupSets().size();
    ui_->radioOrphanedSet->setEnabled(orphans_ > 0);
    (orphans_ > 0 ? ui_->radioOrphanedSet : ui_->radioDatabase)->setChecked(true);
    setTexts();
}

RecoveryDlg::~RecoveryDlg() = default;

void RecoveryDlg::setTexts() {
    if (orphans_ > 0)
        ui_->radioOrphanedSet->setText(
            tr("&Recover orphaned backup sets (Found %1 orphaned backup set(s))").arg(orphans_));
}

void RecoveryDlg::on_buttonBox_accepted() {
    if (ui_->radioOrphanedSet->isChecked())
        recoverOrphanedSets();
    else if (ui_->radioDatabase->isChecked())
        recoverDatabase();
}

void RecoveryDlg::recoverOrphanedSets() {
    ui::remoteAction(*this, tr("Tarn-Client Database Recovery Error"), ui::Cursor::wait, [] {
        const auto connection = session::getConnection();
        const auto manager = activityManager();
        for (const auto& orphan : manager->getOrphanedbackupSets()) {
            const std::int32_t id = manager->recover_orphaned_backup_set(orphan);
            session::required(connection->backup_set(id))->start_sync(true);
        }
    });
}

void RecoveryDlg::recoverDatabase() {
    const bool confirmed = ui::confirms(
        this, tr("Recover Database"),
        tr("The current database will be overwritten.\nAfter recovery, you have to restart ostrand "
           "backup service.\nAre you sure you want to recover database?"));
    if (confirmed)
        ui::remoteAction(*this, tr("Tarn-Client Database Recovery Error"), ui::Cursor::arrow,
                         [] { activityManager()->recover_tarnclient_database(wholeDatabase); });
}

void RecoveryDlg::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        setTexts();
    }
    QDialog::changeEvent(event);
}
