// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QString>
#include <QWizardPage>

#include <boost/shared_ptr.hpp>

class CDataSourceDirOnlyModel;
class CDataSourceModel;
class CFileExtensionValidator;
class CSelectDisplayDelegate;
class QItemSelection;
class QModelIndex;

namespace Ui {
class ItemsSelectPage;
}

namespace hessiancln {
class BackupSet;
class DataSourceBrowser;
} // namespace hessiancln

/// What a backup set holds: which kinds of file, and from where. The agent stores no kinds of file,
/// only paths and filters; file_type_expressions.h tells how the one becomes the other.
class ItemsSelectPage : public QWizardPage {
    Q_OBJECT
public:
    using Set = boost::shared_ptr<hessiancln::BackupSet>;

    explicit ItemsSelectPage(QWidget* parent = nullptr);
    ~ItemsSelectPage() override;

    /// The wizard's id of the page that says which computer is backed up. Without one, -1, the page
    /// works on the computer of the set that was loaded.
    void setDataSourcePageId(int id) { dataSourcePageId_ = id; }
    int dataSourcePageId() const { return dataSourcePageId_; }

    /// Keeps the set, to be shown when the page is entered. False, if this program doesn't edit the
    /// set's kind of data. Exceptions of the remote call go to the caller.
    bool load(const Set& set);
    /// Replaces the items of the set by what is chosen here. Exceptions of the remote calls go to
    /// the caller; until all items are made the set keeps its own.
    void apply(const Set& set);

    /// Shows what the agent has, if the computer or its login is another than the last time. A
    /// failure is shown, and leaves the page as it was.
    void initializePage() override;
    bool isComplete() const override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_checkEverything_stateChanged(int state);
    void on_checkDocuments_clicked();
    void on_checkVideo_clicked();
    void on_checkPictures_clicked();
    void on_checkMusic_clicked();
    void on_checkEmail_clicked();
    void on_checkCustomInc_clicked();
    void on_checkCustomExc_clicked();
    void on_editCustomInc_textChanged();
    void on_radioSpecificLocation_clicked();
    void on_radioCustom_clicked();
    void on_comboSpecificLocations_currentIndexChanged(int index);
    void treeCheckChanged();
    void treeExpanded(const QModelIndex& index);

private:
    using Browser = boost::shared_ptr<hessiancln::DataSourceBrowser>;

    std::unique_ptr<Ui::ItemsSelectPage> ui_;
    CFileExtensionValidator* validator_;         ///< owned by the page, shared by both fields
    CSelectDisplayDelegate* delegate_ = nullptr; ///< owned by the page; null before the first load
    CDataSourceModel* model_ = nullptr;          ///< likewise
    CDataSourceDirOnlyModel* folders_ = nullptr; ///< likewise
    Browser browser_;
    Set set_; ///< null for a new set
    int dataSourcePageId_ = -1;
    QString computer_;
    QString connectUser_;
    bool hadSelection_ = false;
};
