// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/login_check.h"

#include <algorithm>
#include <optional>

#include <QComboBox>
#include <QEvent>
#include <QLabel>

#include "session/connection.h"
#include "session/integrated_logon.h"
#include "session/login_fields.h"
#include "session/text.h"
#include "ui/remote_action.h"
#include "ui_login_check.h"

namespace {

constexpr int loggedIn = 0;
constexpr int cancelled = 1;
constexpr std::int32_t passwordLogin = 1;
constexpr int smallestWidth = 294;
constexpr int smallestHeight = 180;

QString currentUserName() {
    return session::fromWire(session::currentWindowsUser());
}

} // namespace

LoginCheck::LoginCheck(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::LoginCheck>()) {
    ui_->setupUi(this);
    ui_->lineEditUserName->setText(currentUserName());

    const QStringList domains = session::readDomainList("127.0.0.1");
    if (!domains.isEmpty())
        addDomains(domains);
    // Not in the form: it would disable the group before it has its fields, and a running screen
    // reader would treat them as empty.
    ui_->groupLoginInfo->setEnabled(false);
    if (!session::integratedLogonAvailable())
        withoutIntegratedLogon();
    // Last, because a disabled field doesn't take the focus.
    if (!ui_->lineEditUserName->text().isEmpty())
        ui_->lineEditPassword->setFocus();
    fitToTexts();
}

LoginCheck::~LoginCheck() = default;

void LoginCheck::addDomains(const QStringList& domains) {
    labelDomain_ = new QLabel(ui_->groupLoginInfo);
    comboDomain_ = new QComboBox(ui_->groupLoginInfo);
    labelDomain_->setObjectName(QStringLiteral("labelDomain"));
    comboDomain_->setObjectName(QStringLiteral("comboDomain"));
    labelDomain_->setBuddy(comboDomain_);
    comboDomain_->addItems(domains);
    // The width of the dialog depends on its texts, not on the agent's domains.
    comboDomain_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    comboDomain_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    ui_->formLayout->insertRow(0, labelDomain_, comboDomain_);
    retranslateDomains();
}

void LoginCheck::retranslateDomains() {
    if (!comboDomain_)
        return;
    labelDomain_->setText(tr("&From:"));
    comboDomain_->setAccessibleName(tr("Domain"));
}

void LoginCheck::withoutIntegratedLogon() {
    ui_->chkSSPILogin->setChecked(false);
    on_chkSSPILogin_clicked(false);
    ui_->chkSSPILogin->hide();
}

/// The form's preset size fits the English texts in a common font. Grows if the texts don't fit.
void LoginCheck::fitToTexts() {
    const int button = std::max(ui_->buttonLogin->minimumSizeHint().width(),
                                ui_->buttonQuit->minimumSizeHint().width());
    ui_->buttonLogin->setMinimumWidth(button);
    ui_->buttonQuit->setMinimumWidth(button);
    ensurePolished();
    const QSize needed = layout()->minimumSize();
    setMinimumWidth(needed.width());
    setFixedHeight(std::max(smallestHeight, needed.height()));
    resize(std::max(smallestWidth, needed.width()), height());
}

void LoginCheck::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        retranslateDomains();
        fitToTexts();
    }
    QDialog::changeEvent(event);
}

void LoginCheck::on_chkSSPILogin_clicked(bool checked) {
    ui_->groupLoginInfo->setEnabled(!checked);
    ui_->lineEditUserName->setText(currentUserName());
    ui_->lineEditPassword->wipe();
    if (comboDomain_)
        comboDomain_->setCurrentIndex(0);
}

QString LoginCheck::agentAddress() const {
    return session::agentAddressOf(ui_->lineEditUserName->text());
}

QString LoginCheck::host() const {
    return session::hostForDisplay(agentAddress());
}

QString LoginCheck::user() const {
    std::optional<QString> domain;
    if (comboDomain_)
        domain = comboDomain_->currentText();
    return session::loginUserOf(ui_->lineEditUserName->text(), ui_->chkSSPILogin->isChecked(),
                                domain);
}

void LoginCheck::OnLogin() {
    ui::remoteAction(*this, tr("Login Failed"), ui::Cursor::wait, [this] {
        session::checkPort(agentAddress());
        const std::string address = session::toWire(agentAddress());
        if (ui_->chkSSPILogin->isChecked())
            session::connectToAgent(address, "", "", 0);
        else
            session::connectToAgent(address, session::toWire(user()),
                                    ui_->lineEditPassword->secret().text(), passwordLogin);
        done(loggedIn);
    });
}

void LoginCheck::OnQuit() {
    done(cancelled);
}
