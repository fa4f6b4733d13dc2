// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QWizardPage>

#include <boost/shared_ptr.hpp>

#include "api/client_configuration_records.h"

class CRestoreDestinationDirectoryOnlyModel;
class CRestoreDestinationModel;

namespace hessiancln {
class BackupSet;
class DataSourceBrowser;
} // namespace hessiancln

namespace Ui {
class SetOptionsPage;
}

/// Whether a set keeps a copy on local storage, and in which folder of the agent's computer.
class SetOptionsPage : public QWizardPage {
    Q_OBJECT
public:
    /// Asks the agent for its path notation. Throws what the calls throw.
    explicit SetOptionsPage(QWidget* parent = nullptr);
    ~SetOptionsPage() override;

    /// The id of the `SelectDataSourcePage` whose browser shows the folders; -1, the default, if
    /// none precedes this page.
    void setDataSourcePageId(int id) { dataSourcePageId_ = id; }
    int dataSourcePageId() const { return dataSourcePageId_; }

    /// Shows the options of a set. Always true. Throws what the set's calls throw.
    bool load(const boost::shared_ptr<hessiancln::BackupSet>& set);
    /// Throws what the set's calls throw.
    void apply(const boost::shared_ptr<hessiancln::BackupSet>& set);

    void initializePage() override;
    bool isComplete() const override;

public slots:
    void on_chkLocalCopy_clicked(bool checked);
    void on_chkLocalCache_clicked(bool checked);
    void on_editLocalPath_textChanged();
    void on_btnLocalPath_toggled(bool checked);
    void dirTreeSelectionChanged();
    void treeExpanded(const QModelIndex& index);

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildModels(const boost::shared_ptr<hessiancln::DataSourceBrowser>& browser);
    void giveTreeItsModel();
    bool isFolderWanted() const;
    void showFolderIfWanted();
    void showFolder(bool shown);
    /// Selects the folder or its deepest existing ancestor. Returns false if neither exists.
    bool moveTreeToPath();

    std::unique_ptr<Ui::SetOptionsPage> ui_;
    int dataSourcePageId_ = -1;
    hessiancln::ClientOSType osType_;
    std::unique_ptr<CRestoreDestinationModel> model_; ///< null until needed, like the next member
    std::unique_ptr<CRestoreDestinationDirectoryOnlyModel> directories_;
};
