// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

#include <QWizardPage>

#include <boost/shared_ptr.hpp>

#include "api/backup_set_records.h"
#include "wizards/field_memo.h"

class CBackedUpDataModel;
class CBackedupDataDirOnlyModel;
class CBackedupDataFileFilterModel;
class QDateTimeEdit;
class QItemSelection;
class QLineEdit;
class QListView;
class QSplitter;
class QTreeView;

namespace hessiancln {
class BackupSet;
class BackupSetDataView;
} // namespace hessiancln

/// A page for checking items in the content of a set: a tree of its folders, and the files of the
/// selected one. The content is one view of the agent; each change of a filter requests another
/// view and drops the check marks. A failure is reported, the old view stays, and the fields of the
/// filter are reset to match it: users must never select with a filter that isn't applied.
class StoredItemsPage : public QWizardPage {
    Q_OBJECT
public:
    ~StoredItemsPage() override;

    bool isComplete() const override;
    /// Accepts a date that is typed but not committed yet, because shortcuts don't move the focus:
    /// the result must match the fields. Stays on the page if that dropped the check marks.
    bool validatePage() override;

protected:
    /// Widgets of the page's form.
    struct Views {
        QTreeView& folders;
        QListView& files;
        QSplitter& splitter;
        QLineEdit& fileFilter;
    };

    explicit StoredItemsPage(QWidget* parent);

    /// Call once, after the form is set up. `filter` are the fields that a view depends on.
    void setUp(const Views& views, std::initializer_list<QWidget*> filter);

    /// Shows the content of the view in place of the previous one, with the same folders expanded
    /// and selected. Throws what the first request throws; nothing has changed then.
    void showContents(const boost::shared_ptr<hessiancln::BackupSetDataView>& view);
    /// Limits the dates to the time span of the set's backups, once it is known: sends requests
    /// only until then. Throws what the call throws.
    void loadDateLimits(hessiancln::BackupSet& set, QDateTimeEdit& from,
                        std::initializer_list<QDateTimeEdit*> others);
    /// Runs an action triggered by a field, after the current call if one is running, while the
    /// wizard shows the page. A failure is shown.
    void atField(const std::function<void()>& work);
    /// Whether the filter differs from the current view. The Return key makes a date field signal a
    /// change even if its date is unchanged.
    bool filterChanged() const { return filterOfView_.differs(); }
    /// Override to update what depends on the fields of the filter, which were reset.
    virtual void fieldsPutBack() = 0;

    /// Valid from the first view on, like the functions below.
    CBackedUpDataModel& model() const { return *model_; }
    CBackedupDataDirOnlyModel& folders() const { return *folders_; }
    CBackedupDataFileFilterModel& files() const { return *files_; }

protected slots:
    void setFileNameFilter(const QString& text);
    virtual void treeSelectionChanged(const QItemSelection& selected);
    void treeCheckChanged();

private:
    void showModel(std::unique_ptr<CBackedUpDataModel> model);
    void showFetchFailure(const QString& text);

    QTreeView* tree_ = nullptr; ///< from the form, like the next members
    QListView* list_ = nullptr;
    QLineEdit* fileFilter_ = nullptr;
    std::unique_ptr<CBackedUpDataModel> model_;
    CBackedupDataDirOnlyModel* folders_ = nullptr; ///< owned by the model, like the next member
    CBackedupDataFileFilterModel* files_ = nullptr;
    std::vector<hessiancln::backup_sessions> sessions_; ///< requested once
    wizards::FieldMemo filterOfView_;
    bool hadSelection_ = false;
    bool showingFailure_ = false;
};
