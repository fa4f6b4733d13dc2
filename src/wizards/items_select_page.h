// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <QString>
#include <QWizardPage>

#include <boost/shared_ptr.hpp>

#include "ui/screen_fit.h"

class CDataSourceDirOnlyModel;
class CDataSourceModel;
class CFileExtensionValidator;
class CSelectDisplayDelegate;
class QCheckBox;
class QModelIndex;

namespace Ui {
class ItemsSelectPage;
}

namespace hessiancln {
class BackupSet;
class DataSourceBrowser;
struct PreDefinedBrowseItem;
} // namespace hessiancln

namespace models {
struct PathItem;
}

namespace wizards {
struct FileKind;
struct FileTypes;
struct StoredItems;
} // namespace wizards

/// What a backup set holds: which kinds of file, and from where. The agent stores no kinds of file,
/// only paths and filters; file_type_expressions.h converts between them.
class ItemsSelectPage : public QWizardPage, public ui::GrowingPage {
    Q_OBJECT
public:
    using Set = boost::shared_ptr<hessiancln::BackupSet>;

    explicit ItemsSelectPage(QWidget* parent = nullptr);
    ~ItemsSelectPage() override;

    /// The id of the wizard page that selects the computer to back up. Without one (-1), the page
    /// works on the computer of the loaded set.
    void setDataSourcePageId(int id) { dataSourcePageId_ = id; }
    int dataSourcePageId() const { return dataSourcePageId_; }

    /// Stores the set, to be shown when the page is entered. False if this program doesn't support
    /// the set's kind of data. Exceptions of the remote call propagate.
    bool load(const Set& set);
    /// Replaces the items of the set with the selection. Exceptions of the remote calls propagate;
    /// until all items are created, the set keeps its own.
    void apply(const Set& set);

    /// Shows the agent's data if the computer or its login has changed since the last time. A
    /// failure leaves the page unchanged, ends the wizard and is rethrown to its caller.
    void initializePage() override;
    bool isComplete() const override;
    QSize largestSize() const override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_checkEverything_stateChanged(int state);
    void on_checkCustomInc_clicked(bool checked);
    void on_checkCustomExc_clicked(bool checked);
    void on_editCustomInc_textChanged();
    void on_radioSpecificLocation_clicked();
    void on_radioCustom_clicked();
    void on_comboSpecificLocations_currentIndexChanged(int index);
    void treeCheckChanged();
    void treeExpanded(const QModelIndex& index);

private:
    using Browser = boost::shared_ptr<hessiancln::DataSourceBrowser>;

    /// The origin of the items.
    struct Source {
        Browser browser;
        QString computer;
        QString connectUser; ///< empty without a data source page
    };
    struct Contents;

    void showPatterns();
    QCheckBox& boxOf(const wizards::FileKind& kind) const;
    std::optional<Source> changedSource() const;
    Contents fetch(const Source& source) const;
    void showContents(Contents contents);
    void showPresets(const std::vector<hessiancln::PreDefinedBrowseItem>& presets);
    void showTree(std::unique_ptr<CDataSourceModel> model);
    void showFileTypes(const wizards::StoredItems& stored);
    void showLocation(const std::set<std::string>& inclusions);
    void showExclusions();
    void chooseSpecificLocation();
    void chooseCustomLocation();
    void showTreeOrNot(bool shown);
    bool anyKind() const;
    wizards::FileTypes fileTypes() const;
    std::vector<models::PathItem> paths() const;

    std::unique_ptr<Ui::ItemsSelectPage> ui_;
    CFileExtensionValidator* validator_;         ///< owned by the page, shared by both fields
    CSelectDisplayDelegate* delegate_ = nullptr; ///< owned by the page; null until it is needed
    std::unique_ptr<CDataSourceModel> model_;    ///< null until the page has been entered
    std::unique_ptr<CDataSourceDirOnlyModel> folders_; ///< likewise
    int exclusions_ = 0;                               ///< of the set as it is stored
    bool hadSelection_ = false;                        ///< what was last said of the model
    Set set_;                                          ///< null for a new set
    Source source_;                                    ///< source of the current models
    int dataSourcePageId_ = -1;
};
