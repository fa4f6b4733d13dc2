// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/set_name_page.h"

#include <algorithm>

#include <QToolTip>

#include "api/client_connection.h"
#include "session/connection.h"
#include "session/text.h"
#include "ui/wizard_frame.h"
#include "ui_set_name_page.h"

bool wizards::isNameTaken(const QString& name,
                          const std::vector<hessiancln::backup_set_info>& sets) {
    return std::any_of(sets.begin(), sets.end(), [&name](const hessiancln::backup_set_info& set) {
        return session::fromWire(set.name).compare(name, Qt::CaseInsensitive) == 0;
    });
}

SetNamePage::SetNamePage(QWidget* parent)
    : QWizardPage(parent)
    , ui_(std::make_unique<Ui::SetNamePage>()) {
    ui_->setupUi(this);
}

SetNamePage::~SetNamePage() = default;

QString SetNamePage::name() const {
    return ui_->editSetName->text().trimmed();
}

void SetNamePage::apply(const boost::shared_ptr<hessiancln::BackupSet>& set) {
    set->setName(session::toWire(name()));
}

bool SetNamePage::isComplete() const {
    return !name().isEmpty();
}

void SetNamePage::on_editSetName_textChanged() {
    emit completeChanged();
}

bool SetNamePage::validatePage() {
    try {
        if (!wizards::isNameTaken(name(), session::getConnection()->backup_sets_info()))
            return true;
    } catch (const std::exception&) {
        ui::failWizard(wizard(), std::current_exception());
        return false;
    }
    QLineEdit* edit = ui_->editSetName;
    edit->setFocus();
    QToolTip::showText(
        edit->mapToGlobal(QPoint(0, 0)),
        tr("A backup set with the same name already exists. \nPlease choose a different name."),
        edit);
    return false;
}

void SetNamePage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QWizardPage::changeEvent(event);
}
