// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <string>

#include <QWizardPage>

#include <boost/shared_ptr.hpp>

#include "ui/screen_fit.h"
#include "wizards/cached_credentials.h"
#include "wizards/credentials_kind.h"

class CComputerTreeModel;

namespace hessiancln {
class BackupSet;
class DataSourceBrowser;
} // namespace hessiancln

namespace Ui {
class SelectDataSourcePage;
}

namespace wizards {

/// Whether the typed source is on the agent's own computer. Its name is matched in this spelling
/// only; anything after a backslash is ignored.
bool isLocalComputer(const QString& source);

} // namespace wizards

/// Which computer a set backs up, and with which login. The page owns the browser of its wizard,
/// and writes each change of the credentials to it immediately, because the next page needs access
/// to the computer. Errors in the credentials are shown in a box; the page stays usable.
class SelectDataSourcePage : public QWizardPage, public ui::GrowingPage {
    Q_OBJECT
public:
    /// Whether a user of this machine, in UTF-8, is an administrator.
    using AdministratorTest = std::function<bool(const std::string& user)>;

    /// The purpose of the source or the login.
    enum class Purpose { Backup, OtherCredentials, Destination };

    /// Gets a new browser from the session, and starts with the agent's own computer. Throws what
    /// the session throws.
    explicit SelectDataSourcePage(QWidget* parent = nullptr);
    SelectDataSourcePage(const AdministratorTest& isAdministrator, QWidget* parent = nullptr);
    ~SelectDataSourcePage() override;

    QSize largestSize() const override;

    boost::shared_ptr<hessiancln::DataSourceBrowser> browser() const { return browser_; }
    /// Trimmed.
    QString computerName() const;
    /// The displayed user; empty if the source needs none.
    QString connectUser() const;

    /// Shows the source of a set that has items. False if it isn't a set of files, which this
    /// program can't edit. Throws what the set's calls throw, except those about credentials.
    bool initFromSet(const boost::shared_ptr<hessiancln::BackupSet>& set);
    /// Likewise for a set without items, whose credentials aren't usable yet.
    bool initFromEmptySet(const boost::shared_ptr<hessiancln::BackupSet>& set);
    /// Offers the computer of a set as the restore destination. Always true.
    bool initForRestore(const boost::shared_ptr<hessiancln::BackupSet>& set);
    /// Assigns the credentials to the set. Throws what the calls throw.
    void applyCredentials(const boost::shared_ptr<hessiancln::BackupSet>& set);

    /// Sets the purpose of the page; initially, selecting what to back up. For a restore, the
    /// agent's own account isn't offered. Other credentials are for the computer of the set,
    /// whatever was chosen here before.
    void setPurpose(Purpose purpose);

    bool isComplete() const override;
    /// Makes the agent check the credentials.
    bool validatePage() override;

public slots:
    void OnShowNetDiscoveryTree();
    void treeSelectionChanged();
    void computerNameEdited();
    void computerNameChanged();
    void OnSelectConnectAs();
    void OnSelectSudo();
    void OnSelectSSHAccess();
    void on_chkUseTarnClientAccount_clicked(bool checked);
    void treeExpanded(const QModelIndex& index);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    using Credentials = boost::shared_ptr<hessiancln::BackupSetCredentials>;

    void connectWidgets();
    /// Expands the typed name. Returns false on failure, which has been shown.
    bool takeTypedComputer();
    void showPurpose();
    void giveTreeItsModel();
    void takeNeededCredentials();
    bool showComputerOfFileSet(hessiancln::BackupSet& set);
    void setComplete(bool complete);
    QString computerToCheck() const;

    /// Shows the current credentials. Call whenever the source may have changed.
    void refresh();
    void showRows(wizards::CredentialsKind kind);
    void showLogin(const Credentials& credentials, wizards::CredentialsKind kind);
    void showSSHLogin(hessiancln::UnixFS_SSH_BackupSetCredentials& credentials);
    void enableConnectAs();

    Credentials currentCredentials();
    template <class Class>
    void askForPassword(const Credentials& credentials);
    void askForSSHLogin(const Credentials& credentials);

    std::unique_ptr<Ui::SelectDataSourcePage> ui_;
    boost::shared_ptr<hessiancln::DataSourceBrowser> browser_;
    std::unique_ptr<CComputerTreeModel> model_;
    wizards::CachedCredentials cache_;
    Purpose purpose_ = Purpose::Backup;
    QString restoredComputer_; ///< computer of the set, if the wizard restores one
    bool complete_ = true;
    bool useClientAccount_ = false; ///< the flag of the credentials, as far as it is known
    bool editing_ = false; ///< an edited name is being sent to the agent, or its failure is being
                           ///< shown
};
