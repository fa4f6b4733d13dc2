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

/// Whether the source that was typed is on the agent's own computer. Its name counts in this
/// spelling only; what follows a backslash doesn't matter.
bool isLocalComputer(const QString& source);

} // namespace wizards

/// Which computer a set backs up, and with which login. The page owns the browser of its wizard,
/// and writes each change of the credentials to it at once: only so can the next page look into
/// the computer. What is wrong with the credentials is shown in a box; the page stays usable.
class SelectDataSourcePage : public QWizardPage, public ui::GrowingPage {
    Q_OBJECT
public:
    /// Whether a user of this machine, in UTF-8, is one of its administrators.
    using AdministratorTest = std::function<bool(const std::string& user)>;

    /// What the source, or the login, is wanted for.
    enum class Purpose { Backup, OtherCredentials, Destination };

    /// Takes a fresh browser from the session, and starts with the agent's own computer. Raises
    /// what the session raises if that fails.
    explicit SelectDataSourcePage(QWidget* parent = nullptr);
    SelectDataSourcePage(const AdministratorTest& isAdministrator, QWidget* parent = nullptr);
    ~SelectDataSourcePage() override;

    QSize largestSize() const override;

    boost::shared_ptr<hessiancln::DataSourceBrowser> browser() const { return browser_; }
    /// Without blanks around it.
    QString computerName() const;
    /// The user that the page shows; empty if the source wants none.
    QString connectUser() const;

    /// Shows the source of a set that has items. False if it isn't a set of files, which this
    /// program doesn't edit. Raises what the set's calls raise, but for those about credentials.
    bool initFromSet(const boost::shared_ptr<hessiancln::BackupSet>& set);
    /// The same for a set without items, whose credentials are of no use yet.
    bool initFromEmptySet(const boost::shared_ptr<hessiancln::BackupSet>& set);
    /// Offers the computer of a set as the one to restore to. Always true.
    bool initForRestore(const boost::shared_ptr<hessiancln::BackupSet>& set);
    /// Gives the credentials to the set. Raises what the calls raise.
    void applyCredentials(const boost::shared_ptr<hessiancln::BackupSet>& set);

    /// Says what is asked for; at first, what to back up. For a restore there is no account of the
    /// agent's own. Other credentials are for the computer of the set, whatever was chosen here
    /// before.
    void setPurpose(Purpose purpose);

    bool isComplete() const override;
    /// Lets the agent try the credentials.
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
    /// Expands what is typed. False if that failed, which was shown.
    bool takeTypedComputer();
    void showPurpose();
    void giveTreeItsModel();
    void takeNeededCredentials();
    bool showComputerOfFileSet(hessiancln::BackupSet& set);
    void setComplete(bool complete);
    QString computerToCheck() const;

    /// Shows what the present credentials say. To be called whenever the source may be another.
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
    QString restoredComputer_; ///< of the set, if the wizard restores one
    bool complete_ = true;
    bool useClientAccount_ = false; ///< the flag of the credentials, as far as it is known
    bool editing_ = false; ///< an edited name is at the agent, or its failure on the screen
};
