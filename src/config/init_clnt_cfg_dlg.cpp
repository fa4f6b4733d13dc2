// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/init_clnt_cfg_dlg.h"

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include "api/client_connection.h"
#include "config/chosen_file.h"
#include "config/country_table.h"
#include "config/cri_file.h"
#include "config/registration_entries.h"
#include "config/system_address_list.h"
#include "session/connection.h"
#include "session/process_values.h"
#include "session/required.h"
#include "session/secret_text.h"
#include "session/text.h"
#include "ui/branding_resources.h"
#include "ui/error_box.h"
#include "ui/file_dialog.h"
#include "ui/message_box.h"
#include "ui/red_label.h"
#include "ui/remote_action.h"
#include "ui/screen_fit.h"
#include "ui_init_clnt_cfg_dlg.h"

namespace {

auto configuration() {
    return session::required(session::getConnection()->getConfigurationManager());
}

QString nameOf(hessiancln::KeyEncryptionType type) {
    return session::fromWire(hessiancln::keyEncryptionName(type));
}

hessiancln::KeyEncryptionType chosenType(const QComboBox& combo) {
    return hessiancln::keyEncryptionFromName(session::toWire(combo.currentText()));
}

/// Clears the selection if no item has this text.
void choose(QComboBox& combo, const QString& text) {
    combo.setCurrentIndex(combo.findText(text));
}

void chooseCode(QComboBox& combo, std::int32_t code) {
    combo.setCurrentIndex(combo.findData(code));
}

/// 0 if nothing is selected.
std::int32_t chosenCode(const QComboBox& combo) {
    return combo.currentData().toInt();
}

} // namespace

InitClntCfgDlg::InitClntCfgDlg(bool initial, QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::InitClntCfgDlg>())
    , initial_(initial) {
    ui_->setupUi(this);
    ui::keepRedReadable(*ui_->labWarning);
    ui::keepRedReadable(*ui_->labWarningMsg);
    ui::letContentScroll(*this, ui_->layoutButtons);
    setWindowIcon(ui::g_branding.applicationIcon());
    addCodes();
    setTexts();
    read();
}

InitClntCfgDlg::~InitClntCfgDlg() {
    forgetKeys();
}

void InitClntCfgDlg::setTexts() {
    if (initial_)
        setWindowTitle(tr("Initial Tarn-Client Configuration"));
    const QVariant country = ui_->cmbCountry->currentData();
    ui_->cmbCountry->clear();
    const QLocale language =
        session::g_language.isEmpty() ? QLocale::c() : QLocale(session::g_language);
    for (const auto& [code, name] : config::countriesFor(language))
        ui_->cmbCountry->addItem(name, code);
    ui_->cmbCountry->setCurrentIndex(ui_->cmbCountry->findData(country));
}

void InitClntCfgDlg::addCodes() {
    for (QComboBox* combo : {ui_->cmbEmployees, ui_->cmbIndustry})
        for (int row = 0; row < combo->count(); ++row)
            combo->setItemData(row, row + 1);
}

void InitClntCfgDlg::read() {
    const auto manager = configuration();
    hessiancln::tarnc_reg_info info = manager->getTarnCRegistrationInfo();
    const base::WipedAtEnd privateGuard(info.private_key);
    const base::WipedAtEnd accountGuard(info.account_key);
    showRegistration(info);
    if (const auto customer = manager->getUserInfoConfiguration())
        showUserInfo(customer->getUserInfo());
}

void InitClntCfgDlg::showRegistration(hessiancln::tarnc_reg_info& info) {
    ui_->txtFieldCustomer->setText(session::fromWire(info.customer_name));
    // Show a long name from its beginning.
    ui_->txtFieldCustomer->setCursorPosition(0);
    ui_->txtFieldAccountNum->setText(session::fromWire(info.account_num));
    ui_->txtFieldClientNum->setText(session::fromWire(info.client_num));
    setAddresses(info.tarnsys_ip_addr);
    // The types first, because changing them clears the keys.
    choose(*ui_->cmbPrivateKeyType, nameOf(info.private_key_enc));
    setPrivateKey(info.private_key);
    ui_->grpPrivateKey->setEnabled(initial_);
    const QString accountType = nameOf(info.account_key_enc);
    choose(*ui_->cmbAccountKeyType, accountType);
    setAccountKey(info.account_key);
    ui_->grpAccountKey->setEnabled(initial_ || info.account_key.empty() ||
                                   accountType == QStringLiteral("NONE"));
    ui_->chkForwardKey->setChecked(info.escrow_enc_key);
}

void InitClntCfgDlg::showUserInfo(const hessiancln::user_info& info) {
    chooseCode(*ui_->cmbCountry, info.country_code);
    chooseCode(*ui_->cmbEmployees, static_cast<std::int32_t>(info.num_of_employees));
    chooseCode(*ui_->cmbIndustry, static_cast<std::int32_t>(info.industry_code));
    ui_->grpUserInfo->setEnabled(hessiancln::isMissing(info));
}

QString InitClntCfgDlg::chooseCriFile() {
    const QString home = config::homeOfLogin(session::fromWire(session::currentUser()));
    // The dialog would treat a missing folder as a file name. After an integrated logon there is no
    // user name, and so no home.
    const bool isHome = !session::currentUser().empty() && QFileInfo(home).isDir();
    QFileDialog dialog(this, tr("Please choose CRI file"), isHome ? home : QDir::homePath(),
                       tr("CRI Files (*.cri)"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::ExistingFile);
    ui::adaptFileDialog(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return config::firstFileEndingIn(QLatin1String(".cri"), dialog.selectedFiles());
}

void InitClntCfgDlg::on_btnBrowse_clicked() {
    QFile file(chooseCriFile());
    if (!file.fileName().isEmpty())
        ui::remoteAction(*this, tr("Configuration Error"), ui::Cursor::wait, [&] { read(file); });
}

void InitClntCfgDlg::read(QFile& file) {
    if (!config::openChosen(file, QIODevice::Text | QIODevice::Unbuffered))
        return;
    const config::LinesRead lines = config::readCri(file, [this](const config::CriEntry& entry) {
        const bool changes = mayChange(entry);
        if (changes)
            take(entry);
        return changes;
    });
    ui_->labImport->announce(
        tr("Values imported: %1. Lines skipped: %2.").arg(lines.taken).arg(lines.skipped));
}

/// A file can't set an encryption key that the user can't change.
bool InitClntCfgDlg::mayChange(const config::CriEntry& entry) const {
    using config::CriKey;
    const CriKey key = entry.key;
    if (key == CriKey::privateKeyType || key == CriKey::privateKey)
        return ui_->grpPrivateKey->isEnabledTo(this);
    if (key == CriKey::accountKeyType || key == CriKey::accountKey)
        return ui_->grpAccountKey->isEnabledTo(this);
    return true;
}

void InitClntCfgDlg::take(const config::CriEntry& entry) {
    using config::CriKey;
    switch (entry.key) {
    case CriKey::customerName:
        return ui_->txtFieldCustomer->setText(entry.value);
    case CriKey::accountNumber:
        return ui_->txtFieldAccountNum->setText(entry.value);
    case CriKey::clientNumber:
        return ui_->txtFieldClientNum->setText(entry.value);
    case CriKey::systemAddresses:
        return setAddresses(session::toWire(entry.value));
    case CriKey::privateKeyType:
        return choose(*ui_->cmbPrivateKeyType, config::keyTypeOfCri(entry.value));
    case CriKey::privateKey:
        return setPrivateKey(session::secretToWire(entry.value).text());
    case CriKey::accountKeyType:
        return choose(*ui_->cmbAccountKeyType, config::keyTypeOfCri(entry.value));
    case CriKey::accountKey:
        return setAccountKey(session::secretToWire(entry.value).text());
    }
}

QStringList InitClntCfgDlg::addresses() const {
    QStringList list;
    for (int row = 0; row < ui_->listBoxAddress->count(); ++row)
        list << ui_->listBoxAddress->item(row)->text();
    return list;
}

void InitClntCfgDlg::setAddresses(const std::string& text) {
    ui_->listBoxAddress->clear();
    ui_->listBoxAddress->addItems(config::systemAddressesOf(text));
}

void InitClntCfgDlg::setPrivateKey(const std::string& key) {
    ui_->txtFieldPrivateKey->setSecret(key);
    ui_->txtFieldPrivateKeyConfirm->setSecret(key);
}

void InitClntCfgDlg::setAccountKey(const std::string& key) {
    ui_->txtFieldAccountKey->setSecret(key);
    ui_->txtFieldAccountKeyConfirm->setSecret(key);
}

void InitClntCfgDlg::on_btnAdd_clicked() {
    const auto address = config::newSystemAddress(ui_->txtFieldInputAddress->text(), addresses());
    if (!address)
        return;
    ui_->listBoxAddress->addItem(*address);
    ui_->txtFieldInputAddress->clear();
}

/// In the address field the Return key adds the address; elsewhere it saves.
void InitClntCfgDlg::keyPressEvent(QKeyEvent* event) {
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enters && focusWidget() == ui_->txtFieldInputAddress)
        ui_->btnAdd->click();
    else
        QDialog::keyPressEvent(event);
}

void InitClntCfgDlg::on_btnRemove_clicked() {
    delete ui_->listBoxAddress->takeItem(ui_->listBoxAddress->currentRow());
}

void InitClntCfgDlg::on_cmbPrivateKeyType_currentIndexChanged(int) {
    ui_->txtFieldPrivateKeyConfirm->wipe();
    ui_->txtFieldPrivateKey->wipe();
}

void InitClntCfgDlg::on_cmbAccountKeyType_currentIndexChanged(int) {
    ui_->txtFieldAccountKeyConfirm->wipe();
    ui_->txtFieldAccountKey->wipe();
}

config::RegistrationEntries InitClntCfgDlg::entries() const {
    config::RegistrationEntries entries;
    entries.customerName = ui_->txtFieldCustomer->text();
    entries.accountNumber = ui_->txtFieldAccountNum->text();
    entries.clientNumber = ui_->txtFieldClientNum->text();
    entries.addresses = ui_->listBoxAddress->count();
    entries.privateKey = ui_->txtFieldPrivateKey->text();
    entries.privateKeyConfirm = ui_->txtFieldPrivateKeyConfirm->text();
    entries.accountKeyType = ui_->cmbAccountKeyType->currentText();
    entries.accountKey = ui_->txtFieldAccountKey->text();
    entries.accountKeyConfirm = ui_->txtFieldAccountKeyConfirm->text();
    entries.countryChosen = ui_->cmbCountry->currentIndex() >= 0;
    entries.employeesChosen = ui_->cmbEmployees->currentIndex() >= 0;
    entries.industryChosen = ui_->cmbIndustry->currentIndex() >= 0;
    return entries;
}

hessiancln::tarnc_reg_info InitClntCfgDlg::registration() const {
    hessiancln::tarnc_reg_info info;
    info.customer_name = session::toWire(ui_->txtFieldCustomer->text().trimmed());
    info.account_num = session::toWire(ui_->txtFieldAccountNum->text());
    info.client_num = session::toWire(ui_->txtFieldClientNum->text());
    info.private_key_enc = chosenType(*ui_->cmbPrivateKeyType);
    info.account_key_enc = chosenType(*ui_->cmbAccountKeyType);
    info.private_key = ui_->txtFieldPrivateKey->secret().text();
    info.account_key = ui_->txtFieldAccountKey->secret().text();
    info.tarnsys_ip_addr = config::systemAddressesText(addresses());
    info.escrow_enc_key = ui_->chkForwardKey->isChecked();
    return info;
}

hessiancln::user_info InitClntCfgDlg::userInfo() const {
    return {chosenCode(*ui_->cmbCountry),
            hessiancln::EmployeeCountCode(chosenCode(*ui_->cmbEmployees)),
            hessiancln::IndustryCode(chosenCode(*ui_->cmbIndustry))};
}

void InitClntCfgDlg::write() {
    for (QLineEdit* field : {ui_->txtFieldAccountNum, ui_->txtFieldClientNum})
        field->setText(field->text().trimmed().toUpper());
    const auto manager = configuration();
    hessiancln::tarnc_reg_info info = registration();
    const base::WipedAtEnd privateGuard(info.private_key);
    const base::WipedAtEnd accountGuard(info.account_key);
    manager->setTarnCRegistrationInfo(info);
    if (ui_->grpUserInfo->isEnabled())
        if (const auto customer = manager->getUserInfoConfiguration())
            customer->setUserInfo(userInfo());
    if (ui_->chkRegister->isChecked())
        manager->init_register();
}

void InitClntCfgDlg::on_btnSave_clicked() {
    if (const QString problem = config::problemOf(entries()); !problem.isEmpty()) {
        ui::showError(this, tr("Configuration Error"), problem);
        return;
    }
    if (!ui::remoteAction(*this, tr("Configuration Error"), ui::Cursor::wait, [this] { write(); }))
        return;
    const bool isRegistered = ui_->chkRegister->isChecked();
    ui::showInformation(
        this, tr("Configuration"),
        isRegistered
            ? tr("Tarn-Client Registration Information is saved and registered successfully.")
            : tr("Tarn-Client Registration Information is saved successfully."));
    done(isRegistered ? registered : saved);
}

void InitClntCfgDlg::on_btnCancel_clicked() {
    done(cancelled);
}

void InitClntCfgDlg::done(int result) {
    forgetKeys();
    QDialog::done(result);
}

void InitClntCfgDlg::forgetKeys() {
    for (ui::SecretField* field : {ui_->txtFieldPrivateKeyConfirm, ui_->txtFieldPrivateKey,
                                   ui_->txtFieldAccountKeyConfirm, ui_->txtFieldAccountKey})
        field->wipe();
}

void InitClntCfgDlg::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        setTexts();
    }
    QDialog::changeEvent(event);
}
