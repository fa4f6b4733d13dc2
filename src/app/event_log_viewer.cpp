// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/event_log_viewer.h"

#include <utility>

#include <QDateTime>
#include <QKeyEvent>
#include <QSignalBlocker>

#include "session/wire_time.h"
#include "ui/branding_resources.h"
#include "ui/date_fields.h"
#include "ui/fitting_text_delegate.h"
#include "ui/later.h"
#include "ui/locale_text.h"
#include "ui/remote_action.h"
#include "ui/table_columns.h"
#include "ui_event_log_viewer.h"

EventLogViewer::EventLogViewer(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::EventLogViewer>()) {
    ui_->setupUi(this);
    ui::fitDateFields(*this);
    setWindowIcon(ui::g_branding.applicationIcon());
    setUpTable();
    connect(ui_->timeFrom, &QDateTimeEdit::dateTimeChanged, this, &EventLogViewer::refreshData);
    connect(ui_->timeTo, &QDateTimeEdit::dateTimeChanged, this, &EventLogViewer::refreshData);
    connect(ui_->spinActivityID, qOverload<int>(&QSpinBox::valueChanged), this,
            &EventLogViewer::refreshData);
    connect(ui_->checkActivityID, &QCheckBox::clicked, this, &EventLogViewer::updateEnabling);
    connect(ui_->checkActivityID, &QCheckBox::clicked, this, &EventLogViewer::refreshData);
    connect(ui_->buttonClose, &QPushButton::clicked, this, &EventLogViewer::accept);
}

EventLogViewer::~EventLogViewer() = default;

void EventLogViewer::setUpTable() {
    QTableView& table = *ui_->tableEvents;
    ui::setUpTable(table, model_);
    // The time of day is at the end, and distinguishes events better than the month does.
    table.setItemDelegateForColumn(EventLogModel::time,
                                   new ui::FittingTextDelegate(&table, Qt::ElideMiddle));
    table.sortByColumn(EventLogModel::time, Qt::DescendingOrder);
    ui_->searchEvents->attach(
        table, std::make_unique<insight::SearchedRecords<hessiancln::event_log_info>>(model_),
        [] { return tr("No events match the viewing filter."); });
}

/// For the texts of this language and font.
void EventLogViewer::makeRoom() {
    QTableView& table = *ui_->tableEvents;
    ui::makeRoom(table, EventLogModel::type, EventLogModel::typeLabels(), true);
    ui::makeRoom(table, EventLogModel::time, ui::timeTextSamples(QLocale::LongFormat));
    ui::makeRoom(table, EventLogModel::category, EventLogModel::categoryLabels());
}

std::array<QAbstractSpinBox*, 3> EventLogViewer::fieldsOfFilter() const {
    return {ui_->timeFrom, ui_->timeTo, ui_->spinActivityID};
}

void EventLogViewer::showFor(const QDateTime& from, const QDateTime& to, std::int32_t activityId) {
    {
        // The whole filter is one request to the agent.
        const QSignalBlocker quietFrom(ui_->timeFrom);
        const QSignalBlocker quietTo(ui_->timeTo);
        const QSignalBlocker quietId(ui_->spinActivityID);
        ui_->timeFrom->setDateTime(from);
        ui_->timeTo->setDateTime(to);
        ui_->spinActivityID->setValue(activityId);
        ui_->checkActivityID->setChecked(activityId != 0);
    }
    updateEnabling();
    makeRoom();
    refreshData();
}

void EventLogViewer::setNamesByActivity(insight::SetNames names) {
    ui_->searchEvents->setSetNames(std::move(names));
}

void EventLogViewer::refreshData() {
    if (ui::waitsForCall(*this, [this] { refreshData(); }))
        return;
    ui::remoteAction(*this, tr("Error"), ui::Cursor::arrow, [this] {
        const int id = ui_->spinActivityID->value();
        if (ui_->checkActivityID->isChecked() && id != 0)
            model_.refresh(0, 0, id);
        else
            model_.refresh(session::wireTime(ui_->timeFrom->dateTime()),
                           session::wireTime(ui_->timeTo->dateTime()), 0);
    });
}

void EventLogViewer::updateEnabling() {
    const bool byActivity = ui_->checkActivityID->isChecked();
    ui_->spinActivityID->setEnabled(byActivity);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{ui_->labelFrom, ui_->timeFrom, ui_->labelTo, ui_->timeTo})
        widget->setEnabled(!byActivity);
}

void EventLogViewer::done(int result) {
    // Hiding a field commits the typed text.
    for (QAbstractSpinBox* field : fieldsOfFilter())
        field->blockSignals(true);
    QDialog::done(result);
    for (QAbstractSpinBox* field : fieldsOfFilter())
        field->blockSignals(false);
}

void EventLogViewer::keyPressEvent(QKeyEvent* event) {
    // The Return key after a time commits it. The dialog would close, too.
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || !qobject_cast<QAbstractSpinBox*>(focusWidget()))
        QDialog::keyPressEvent(event);
}

void EventLogViewer::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QDialog::changeEvent(event);
}
