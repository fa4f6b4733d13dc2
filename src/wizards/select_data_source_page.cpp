// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/select_data_source_page.h"

#include <QScopedValueRollback>

#include "api/checked_cast.h"
#include "api/client_connection.h"
#include "models/computer_tree_model.h"
#include "session/administrators.h"
#include "session/agent_kind.h"
#include "session/connection.h"
#include "session/required.h"
#include "session/text.h"
#include "ui/later.h"
#include "ui/remote_action.h"
#include "ui_select_data_source_page.h"
#include "wizards/enter_simple_user_psw.h"
#include "wizards/ssh_access_text.h"
#include "wizards/ssh_access_type.h"
#include "wizards/ssh_connect_as_dlg.h"
#include "wizards/ssh_sudo_credentials.h"

using hessiancln::checkedCast;
using session::fromWire;
using session::toWire;
using wizards::CredentialsKind;

using Windows = hessiancln::Win32FS_Generic_BackupSetCredentials;
using Unix = hessiancln::UnixFS_Generic_BackupSetCredentials;
using SSH = hessiancln::UnixFS_SSH_BackupSetCredentials;

namespace {

constexpr std::int32_t browserForNewSet = 0;

} // namespace

bool wizards::isLocalComputer(const QString& source) {
    const QString name = source.trimmed().section(QLatin1Char('\\'), 0, 0);
    return name == QLatin1String("My Computer") || name == QLatin1String("Tarn-Client Computer");
}

SelectDataSourcePage::SelectDataSourcePage(QWidget* parent)
    : SelectDataSourcePage(session::isAdministrator, parent) {}

SelectDataSourcePage::SelectDataSourcePage(const AdministratorTest& isAdministrator,
                                           QWidget* parent)
    : QWizardPage(parent)
    , ui_(std::make_unique<Ui::SelectDataSourcePage>())
    , browser_(session::required(session::getConnection()->createBrowser(browserForNewSet)))
    , model_(std::make_unique<CComputerTreeModel>(browser_)) {
    ui_->setupUi(this);
    ui_->chkUseTarnClientAccount->setVisible(!session::isNotebookAgent(session::clientType()) &&
                                             isAdministrator(session::currentUser()));
    OnShowNetDiscoveryTree();
    ui_->editComputerName->setText(fromWire(browser_->expandToFullPath("My Computer")));
    connectWidgets();
    takeNeededCredentials();
    refresh();
}

SelectDataSourcePage::~SelectDataSourcePage() = default;

void SelectDataSourcePage::connectWidgets() {
    using Page = SelectDataSourcePage;
    connect(ui_->btnShowNetDiscovery, &QPushButton::toggled, this, &Page::OnShowNetDiscoveryTree);
    connect(ui_->treeNetworkDiscovery, &QTreeView::expanded, this, &Page::treeExpanded);
    connect(ui_->editComputerName, &QLineEdit::textChanged, this, &Page::computerNameChanged);
    connect(ui_->editComputerName, &QLineEdit::editingFinished, this, &Page::computerNameEdited);
    connect(ui_->btnConnectAs, &QPushButton::clicked, this, &Page::OnSelectConnectAs);
    connect(ui_->btnSudo, &QPushButton::clicked, this, &Page::OnSelectSudo);
    connect(ui_->btnSSHAccess, &QPushButton::clicked, this, &Page::OnSelectSSHAccess);
}

void SelectDataSourcePage::takeNeededCredentials() {
    ui::remoteAction(*window(), tr("Error R1"), ui::Cursor::arrow, [this] {
        const Credentials credentials =
            session::required(browser_->neededCredentials(toWire(computerName())));
        cache_.applyTo(credentials);
        browser_->setCurrentCredentials(credentials);
    });
}

QString SelectDataSourcePage::computerName() const {
    return ui_->editComputerName->text().trimmed();
}

QString SelectDataSourcePage::connectUser() const {
    return ui_->editConnectAs->text();
}

bool SelectDataSourcePage::initFromSet(const boost::shared_ptr<hessiancln::BackupSet>& set) {
    if (!showComputerOfFileSet(*set))
        return false;
    ui::remoteAction(*window(), tr("Init Error"), ui::Cursor::arrow, [&] {
        const Credentials credentials = session::required(set->getCredentials());
        useClientAccount_ = credentials->isUsingClientCredentials();
        browser_->setCurrentCredentials(credentials);
    });
    refresh();
    return true;
}

bool SelectDataSourcePage::initFromEmptySet(const boost::shared_ptr<hessiancln::BackupSet>& set) {
    return showComputerOfFileSet(*set);
}

bool SelectDataSourcePage::initForRestore(const boost::shared_ptr<hessiancln::BackupSet>& set) {
    ui::remoteAction(*window(), tr("Init Error"), ui::Cursor::arrow,
                     [&] { ui_->editComputerName->setText(fromWire(set->getComputerName())); });
    restoredComputer_ = computerName();
    return true;
}

void SelectDataSourcePage::setPurpose(Purpose purpose) {
    if (purpose == purpose_)
        return;
    purpose_ = purpose;
    showPurpose();
}

void SelectDataSourcePage::showPurpose() {
    const bool wantsSource = purpose_ != Purpose::OtherCredentials;
    ui_->groupDataSource->setVisible(wantsSource);
    // A wizard gives the focus to enabled widgets even if they are hidden.
    ui_->groupDataSource->setEnabled(wantsSource);
    switch (purpose_) {
    case Purpose::Backup:
        return;
    case Purpose::OtherCredentials:
        setTitle(tr("Use other credentials"));
        setSubTitle(tr("Enter the credentials to be used during restore"));
        break;
    case Purpose::Destination:
        setTitle(tr("Restore Destination Computer"));
        setSubTitle(tr("Select the computer where the data will be restored to"));
        ui_->groupDataSource->setTitle(tr("Destination"));
        ui_->labelItemsFrom->setText(tr("Data will be restored to:"));
        break;
    }
    ui_->chkUseTarnClientAccount->hide();
}

void SelectDataSourcePage::showEvent(QShowEvent* event) {
    QWizardPage::showEvent(event);
    // Without its first field the wizard leaves the focus on a hidden widget. It looks for a widget
    // after this event.
    if (purpose_ == Purpose::OtherCredentials)
        QMetaObject::invokeMethod(
            this, [this] { ui_->btnConnectAs->setFocus(); }, Qt::QueuedConnection);
}

bool SelectDataSourcePage::showComputerOfFileSet(hessiancln::BackupSet& set) {
    if (set.getDataType() != hessiancln::BackupDataType::FileSystem)
        return false;
    ui_->editComputerName->setText(fromWire(set.getComputerName()));
    ui_->editComputerName->setEnabled(false);
    ui_->btnShowNetDiscovery->setEnabled(false);
    return true;
}

void SelectDataSourcePage::applyCredentials(const boost::shared_ptr<hessiancln::BackupSet>& set) {
    set->setCredentials(currentCredentials());
}

bool SelectDataSourcePage::validatePage() {
    // A button's shortcut doesn't take the focus from the field.
    const QLineEdit& name = *ui_->editComputerName;
    if (name.hasFocus() && name.isModified() && !takeTypedComputer())
        return false;
    return ui::remoteAction(*window(), tr("Credential check failed"), ui::Cursor::wait,
                            [this] { currentCredentials()->check(toWire(computerToCheck())); });
}

bool SelectDataSourcePage::isComplete() const {
    return complete_ || purpose_ == Purpose::OtherCredentials;
}

QString SelectDataSourcePage::computerToCheck() const {
    return purpose_ == Purpose::OtherCredentials ? restoredComputer_ : computerName();
}

void SelectDataSourcePage::setComplete(bool complete) {
    complete_ = complete;
    emit completeChanged();
}

SelectDataSourcePage::Credentials SelectDataSourcePage::currentCredentials() {
    return session::required(browser_->getCurrentCredentials());
}

void SelectDataSourcePage::refresh() {
    ui::remoteAction(*window(), tr("Error R2"), ui::Cursor::arrow, [this] {
        const Credentials credentials = currentCredentials();
        const CredentialsKind kind = wizards::credentialsKind(credentials->types());
        showRows(kind);
        computerNameChanged();
        showLogin(credentials, kind);
        browser_->setCurrentCredentials(credentials);
    });
}

void SelectDataSourcePage::showRows(CredentialsKind kind) {
    const bool wantsUser = kind != CredentialsKind::Other;
    const bool overSSH = kind == CredentialsKind::SSH;
    for (QWidget* widget :
         {static_cast<QWidget*>(ui_->labelConnectAs), static_cast<QWidget*>(ui_->editConnectAs),
          static_cast<QWidget*>(ui_->btnConnectAs)})
        widget->setVisible(wantsUser);
    for (QWidget* widget :
         {static_cast<QWidget*>(ui_->labelSudo), static_cast<QWidget*>(ui_->editSudo),
          static_cast<QWidget*>(ui_->btnSudo), static_cast<QWidget*>(ui_->labelSSHAccess),
          static_cast<QWidget*>(ui_->editSSHAccess), static_cast<QWidget*>(ui_->btnSSHAccess)})
        widget->setVisible(overSSH);
}

void SelectDataSourcePage::showLogin(const Credentials& credentials, CredentialsKind kind) {
    switch (kind) {
    case CredentialsKind::Windows:
        ui_->editConnectAs->setText(fromWire(checkedCast<Windows>(credentials)->getUserName()));
        break;
    case CredentialsKind::SSH:
        showSSHLogin(*checkedCast<SSH>(credentials));
        break;
    case CredentialsKind::Unix:
        ui_->editConnectAs->setText(fromWire(checkedCast<Unix>(credentials)->getUserName()));
        break;
    case CredentialsKind::Other:
        break;
    }
}

void SelectDataSourcePage::showSSHLogin(SSH& credentials) {
    ui_->editConnectAs->setText(fromWire(credentials.getUserName()));
    ui_->editSudo->setText(fromWire(credentials.getSudoUser()));
    const auto access = credentials.getSSHAccessType();
    ui_->editSSHAccess->setText(
        wizards::sshAccessText(access, fromWire(credentials.getSSHInterpreterPath())));
}

void SelectDataSourcePage::computerNameChanged() {
    const bool local = wizards::isLocalComputer(computerName());
    ui_->chkUseTarnClientAccount->setEnabled(local);
    ui_->chkUseTarnClientAccount->setChecked(local && useClientAccount_);
    enableConnectAs();
}

void SelectDataSourcePage::enableConnectAs() {
    const bool own = !ui_->chkUseTarnClientAccount->isChecked();
    ui_->btnConnectAs->setEnabled(own);
    ui_->editConnectAs->setEnabled(own);
}

void SelectDataSourcePage::computerNameEdited() {
    // A field loses the focus to the box that reports its failure, and a read-only one when
    // the user tabs through it: nothing was typed in these cases. A cancelled wizard hides its page
    // and discards the input.
    if (editing_ || ui_->editComputerName->isReadOnly() || isHidden())
        return;
    if (ui::waitsForCall(*this, [this] { computerNameEdited(); }))
        return;
    takeTypedComputer();
}

bool SelectDataSourcePage::takeTypedComputer() {
    const QScopedValueRollback editing(editing_, true);
    const bool expanded = ui::remoteAction(*window(), tr("Error"), ui::Cursor::arrow, [this] {
        const std::string name = browser_->expandToFullPath(toWire(computerName()));
        ui_->editComputerName->setText(fromWire(name));
    });
    if (!expanded) {
        // The user has seen the error; Next continues with the name as it is.
        ui_->editComputerName->setModified(false);
        return false;
    }
    ui_->treeNetworkDiscovery->clearSelection();
    refresh();
    setComplete(true);
    return true;
}

void SelectDataSourcePage::treeSelectionChanged() {
    // A screen reader can select a row during a wait.
    if (ui::waitsForCall(*this, [this] { treeSelectionChanged(); }))
        return;
    const QItemSelection selection = ui_->treeNetworkDiscovery->selectionModel()->selection();
    if (selection.size() != 1)
        return;
    const QModelIndex index = selection.indexes().value(0);
    ui_->editComputerName->setText(fromWire(model_->fullPath(index)));
    refresh();
    setComplete(model_->isComputer(index));
}

void SelectDataSourcePage::treeExpanded(const QModelIndex& index) {
    ui_->treeNetworkDiscovery->scrollTo(index, QAbstractItemView::PositionAtTop);
}

/// A view makes its model fetch the first rows as soon as it is set, even while it is hidden; and
/// network discovery is slow.
void SelectDataSourcePage::giveTreeItsModel() {
    QTreeView* tree = ui_->treeNetworkDiscovery;
    if (tree->model() == model_.get())
        return;
    tree->setModel(model_.get());
    connect(tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SelectDataSourcePage::treeSelectionChanged);
}

void SelectDataSourcePage::OnShowNetDiscoveryTree() {
    const bool shown = ui_->btnShowNetDiscovery->isChecked();
    if (shown)
        giveTreeItsModel();
    ui_->treeNetworkDiscovery->setVisible(shown);
    ui_->editComputerName->setReadOnly(shown);
    QSizePolicy policy = ui_->groupDataSource->sizePolicy();
    policy.setVerticalStretch(shown ? 1 : 0);
    ui_->groupDataSource->setSizePolicy(policy);
}

/// Includes the tree even while it is hidden.
QSize SelectDataSourcePage::largestSize() const {
    QSize size = sizeHint();
    if (ui_->treeNetworkDiscovery->isHidden())
        size.rheight() +=
            ui_->treeNetworkDiscovery->minimumHeight() + ui_->layoutDataSource->spacing();
    return size;
}

void SelectDataSourcePage::on_chkUseTarnClientAccount_clicked(bool checked) {
    const bool done = ui::remoteAction(*window(), tr("Error"), ui::Cursor::arrow, [&] {
        currentCredentials()->setUsingClientCredentials(checked);
        useClientAccount_ = checked;
        enableConnectAs();
    });
    if (!done)
        computerNameChanged();
}

void SelectDataSourcePage::OnSelectConnectAs() {
    ui::remoteAction(*window(), tr("Error"), ui::Cursor::arrow, [this] {
        const Credentials credentials = currentCredentials();
        switch (wizards::credentialsKind(credentials->types())) {
        case CredentialsKind::Windows:
            askForPassword<Windows>(credentials);
            break;
        case CredentialsKind::Unix:
            askForPassword<Unix>(credentials);
            break;
        case CredentialsKind::SSH:
            askForSSHLogin(credentials);
            break;
        case CredentialsKind::Other:
            break;
        }
    });
}

template <class Class>
void SelectDataSourcePage::askForPassword(const Credentials& credentials) {
    const auto login = checkedCast<Class>(credentials);
    CEnterSimpleUserPsw dialog(fromWire(login->getUserName()), window());
    if (dialog.exec() != QDialog::Accepted)
        return;
    cache_.setPassword(toWire(dialog.user()), dialog.password(), *login);
    browser_->setCurrentCredentials(credentials);
    ui_->editConnectAs->setText(dialog.user());
}

void SelectDataSourcePage::askForSSHLogin(const Credentials& credentials) {
    const auto login = checkedCast<SSH>(credentials);
    CSSHConnectAsDlg dialog(fromWire(login->getUserName()), window());
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (dialog.usesPassword())
        cache_.setPassword(toWire(dialog.user()), dialog.password(), *login);
    else
        cache_.setKeyFile(toWire(dialog.identityUser()), toWire(dialog.identityFile()),
                          dialog.passphrase(), *login);
    browser_->setCurrentCredentials(credentials);
    showSSHLogin(*login);
}

void SelectDataSourcePage::OnSelectSudo() {
    ui::remoteAction(*window(), tr("Error"), ui::Cursor::arrow, [this] {
        const auto login = checkedCast<SSH>(currentCredentials());
        CSSHSudoCredentials dialog(fromWire(login->getSudoUser()), window());
        if (dialog.exec() != QDialog::Accepted)
            return;
        if (dialog.noSudo())
            cache_.setSudo({}, {}, *login);
        else
            cache_.setSudo(toWire(dialog.user()), dialog.password(), *login);
        refresh();
    });
}

void SelectDataSourcePage::OnSelectSSHAccess() {
    ui::remoteAction(*window(), tr("Error"), ui::Cursor::arrow, [this] {
        const auto login = checkedCast<SSH>(currentCredentials());
        CSSHAccessType dialog(*login, window());
        if (dialog.exec() != QDialog::Accepted)
            return;
        cache_.setSSHAccess(dialog.type(), toWire(dialog.path()), *login);
        showSSHLogin(*login);
    });
}

void SelectDataSourcePage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        showPurpose();
    }
    QWizardPage::changeEvent(event);
}
