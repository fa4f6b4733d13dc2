// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/backup_set_view_item.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include "app/open_backup_set.h"
#include "session/process_values.h"
#include "session/text.h"
#include "ui/later.h"
#include "ui/remote_action.h"
#include "ui_backup_set_view_item.h"

namespace {

constexpr int longestName = 80;

} // namespace

void BackupSetViewItem::renameOnAgent(std::int32_t setId, const QString& name) {
    app::openBackupSet(setId)->setName(session::toWire(name));
}

BackupSetViewItem::BackupSetViewItem(QWidget* parent, Rename rename)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::BackupSetViewItem>())
    , rename_(std::move(rename)) {
    ui_->setupUi(this);
}

BackupSetViewItem::~BackupSetViewItem() {
    // The editor loses the focus on destruction, which must not rename anything.
    if (nameEditor_)
        disconnect(nameEditor_, nullptr, this, nullptr);
}

void BackupSetViewItem::setRecord(const hessiancln::backup_set_info& record) {
    record_ = record;
    render();
}

void BackupSetViewItem::render() {
    ui_->labelSetName->setText(session::fromWire(record_.name));
    ui_->labelAdditionalInfo->setText(tr("Backup of: %1").arg(session::fromWire(record_.computer)));
    setAccessibleName(ui_->labelSetName->text());
    setAccessibleDescription(ui_->labelAdditionalInfo->text());
    applyLook(app::setCardLook(record_, session::g_isCentrallyManaged));
}

void BackupSetViewItem::applyLook(const app::SetCardLook& look) {
    // The list is rebuilt every few seconds, and style sheets and pictures are expensive.
    if (look == look_)
        return;
    ui_->labelImageDisplay->setPixmap(app::setCardPicture(look));
    look_ = look;
    applyStyleSheet();
    showToolTip();
}

void BackupSetViewItem::applyStyleSheet() {
    const bool selected = backgroundRole() == QPalette::Highlight;
    const QString sheet = app::setCardStyleSheet(look_, QGuiApplication::palette(), selected);
    if (sheet != styleSheet())
        setStyleSheet(sheet);
}

void BackupSetViewItem::showToolTip() {
    setToolTip(look_.needsEditing
                   ? tr("This backup set is a recovered backup set. You must edit\nthe backup "
                        "set items, schedule and the retention for this\nbackup set using the "
                        "buttons on the right.")
                   : QString());
}

void BackupSetViewItem::setSelected(bool selected) {
    setBackgroundRole(selected ? QPalette::Highlight : QPalette::NoRole);
    applyStyleSheet();
}

QLineEdit& BackupSetViewItem::nameEditor() {
    if (!nameEditor_) {
        nameEditor_ = new QLineEdit(this);
        nameEditor_->setObjectName(QStringLiteral("nameEditor"));
        nameEditor_->setAccessibleName(tr("Backup set name"));
        nameEditor_->setMaxLength(longestName);
        nameEditor_->setFont(ui_->labelSetName->font());
        nameEditor_->hide();
        ui_->layoutNameAndData->insertWidget(0, nameEditor_);
        connect(nameEditor_, &QLineEdit::editingFinished, this,
                &BackupSetViewItem::endEditingSetName);
    }
    return *nameEditor_;
}

void BackupSetViewItem::mouseDoubleClickEvent(QMouseEvent* event) {
    if (ui_->labelSetName->geometry().contains(event->pos()))
        startEditingSetName();
    else
        QWidget::mouseDoubleClickEvent(event);
}

void BackupSetViewItem::startEditingSetName() {
    if (session::g_isCentrallyManaged || editingName_)
        return;
    QLineEdit& editor = nameEditor();
    editor.show();
    editor.setText(ui_->labelSetName->text());
    editor.setFocus();
    editor.selectAll();
    ui_->labelSetName->hide();
    editingName_ = true;
}

void BackupSetViewItem::endEditingSetName() {
    if (!editingName_ || sendingName_)
        return;
    if (ui::waitsForCall(*this, [this] { endEditingSetName(); }))
        return;
    hideNameEditor();
    sendName(nameEditor_->text().trimmed());
    editingName_ = false;
}

void BackupSetViewItem::abandonEditing() {
    if (!editingName_ || sendingName_)
        return;
    hideNameEditor();
    editingName_ = false;
}

void BackupSetViewItem::hideNameEditor() {
    // Losing the focus ends an edit too, and this one is already ending.
    const QSignalBlocker quiet(nameEditor_);
    setFocus();
    ui_->labelSetName->show();
    nameEditor_->hide();
}

void BackupSetViewItem::sendName(const QString& name) {
    const QScopedValueRollback<bool> sending(sendingName_, true);
    // The box belongs to the window: the list may delete this card while the box is open.
    const bool renamed = ui::remoteAction(*window(), tr("Rename backup set error"),
                                          ui::Cursor::arrow, [&] { rename_(record_.id, name); });
    if (renamed)
        ui_->labelSetName->setText(name);
    if (deleteOnceSent_)
        deleteLater();
}

bool BackupSetViewItem::event(QEvent* event) {
    if (event->type() == QEvent::DeferredDelete && sendingName_) {
        deleteOnceSent_ = true;
        return true;
    }
    return QWidget::event(event);
}

void BackupSetViewItem::contextMenuEvent(QContextMenuEvent* event) {
    emit contextMenuNeedsDisplay(this, event);
}

void BackupSetViewItem::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        render();
        showToolTip();
    }
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        applyStyleSheet();
        if (!look_.icon.isEmpty())
            ui_->labelImageDisplay->setPixmap(app::setCardPicture(look_));
    }
}
