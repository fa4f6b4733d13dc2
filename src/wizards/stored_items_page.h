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

/// A page on which somebody checks items of what a set holds: a tree of its folders, and the files
/// of the selected one. What is shown is one view of the agent; each change of a filter asks for
/// another one, and drops the marks. If that fails it is told, the old view stays, and the fields
/// of the filter go back to what they said for it: nobody must choose by a filter that isn't there.
class StoredItemsPage : public QWizardPage {
    Q_OBJECT
public:
    ~StoredItemsPage() override;

    bool isComplete() const override;
    /// Takes over a date that is typed but not entered yet, as the key of a button leaves it: what
    /// is finished with is what the fields say. Stays on the page if that dropped the marks.
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

    /// To be called once, with the form there. `filter` are the fields that a view depends on.
    void setUp(const Views& views, std::initializer_list<QWidget*> filter);

    /// Shows what the view holds, in place of what was shown before, with the same folders expanded
    /// and selected. Raises what the first look at it raises; nothing has changed then.
    void showContents(const boost::shared_ptr<hessiancln::BackupSetDataView>& view);
    /// Lets the dates be chosen from when the set was backed up, once that is known: asks only
    /// until then. Raises what the call raises.
    void loadDateLimits(hessiancln::BackupSet& set, QDateTimeEdit& from,
                        std::initializer_list<QDateTimeEdit*> others);
    /// Runs what a field has led to. A failure is shown.
    void atField(const std::function<void()>& work);
    /// Whether the filter says something else than what is shown. The Return key makes a date
    /// report a change even where there is none.
    bool filterChanged() const { return filterOfView_.differs(); }
    /// To be overridden for what follows the fields of the filter, which were put back.
    virtual void fieldsPutBack() = 0;

    /// From the first view on, as are the next.
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

    QTreeView* tree_ = nullptr; ///< of the form, like the next
    QListView* list_ = nullptr;
    QLineEdit* fileFilter_ = nullptr;
    std::unique_ptr<CBackedUpDataModel> model_;
    CBackedupDataDirOnlyModel* folders_ = nullptr; ///< owned by the model, like the next
    CBackedupDataFileFilterModel* files_ = nullptr;
    std::vector<hessiancln::backup_sessions> sessions_; ///< asked for once
    wizards::FieldMemo filterOfView_;
    bool hadSelection_ = false;
    bool showingFailure_ = false;
};
