// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/register_dlg.h"

#include <QEvent>

#include "api/client_connection.h"
#include "session/connection.h"
#include "session/required.h"
#include "session/text.h"
#include "ui/branding_resources.h"
#include "ui/error_box.h"
#include "ui_register_dlg.h"

namespace {

struct Room {
    int characters;
    int lines;
};

constexpr Room roomOfValue{300, 4};
constexpr Room roomOfStatus{1000, 12};

/// A label grows with its text, and the dialog with the label: a long text from the agent could
/// make it larger than the screen.
QString shortened(QString text, Room room) {
    const int whole = text.size();
    text.truncate(room.characters);
    text = text.section(QLatin1Char('\n'), 0, room.lines - 1);
    return text.size() == whole ? text : text + QChar(0x2026);
}

QString valueOf(const std::string& reported) {
    return shortened(session::fromWire(reported), roomOfValue);
}

} // namespace

RegisterDlg::RegisterDlg(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::RegisterDlg>()) {
    ui_->setupUi(this);
    setWindowIcon(ui::g_branding.applicationIcon());
    const auto manager = session::required(session::getConnection()->getConfigurationManager());
    ui_->txtCustomerName->setText(valueOf(manager->getCustomerName()));
    ui_->txtAccountNum->setText(valueOf(manager->getAccountNumber()));
    ui_->txtClientNum->setText(valueOf(manager->getClientNumber()));
}

RegisterDlg::~RegisterDlg() = default;

void RegisterDlg::on_btnRegister_clicked() {
    showStatus(tr("Registering..."));
    try {
        session::required(session::getConnection()->getConfigurationManager())->re_register();
        showStatus(tr("Tarn-Client successfully registered with Tarn-System."));
    } catch (const std::exception& error) {
        showStatus(shortened(ui::errorText(error), roomOfStatus));
    }
}

void RegisterDlg::showStatus(const QString& text) {
    ui_->labStatus->announce(text);
    // The next step may be a blocking call.
    ui_->labStatus->repaint();
}

void RegisterDlg::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        // The form would replace the agent's texts with its own.
        const QString customer = ui_->txtCustomerName->text();
        const QString account = ui_->txtAccountNum->text();
        const QString client = ui_->txtClientNum->text();
        ui_->retranslateUi(this);
        ui_->txtCustomerName->setText(customer);
        ui_->txtAccountNum->setText(account);
        ui_->txtClientNum->setText(client);
    }
    QDialog::changeEvent(event);
}
