// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QWizardPage>

#include <boost/shared_ptr.hpp>

#include "api/backup_set_records.h"

class CBackedUpDataModel;
class CBackedupDataDirOnlyModel;
class CBackedupDataFileFilterModel;
class QItemSelection;

namespace hessiancln {
class BackupSet;
class BackupSetDeleteView;
class GenericActivity;
} // namespace hessiancln
namespace Ui {
class DeleteSelectPage;
}
namespace wizards {
struct DeleteFilterFields;
}

/// What is to be deleted from the storage of a set: check marks in what one view of the agent
/// shows. Each change of the filter asks for another view, and drops the marks.
class DeleteSelectPage : public QWizardPage {
    Q_OBJECT
public:
    /// Raises what the first look at the set raises.
    explicit DeleteSelectPage(boost::shared_ptr<hessiancln::BackupSet> set,
                              QWidget* parent = nullptr);
    ~DeleteSelectPage() override;

    bool isComplete() const override;

    /// Deletes what is checked, or removes the set if that is everything and the user wants so, in
    /// front of `parent`. What the agent does now; null if the user gave up. Raises what the calls
    /// raise; what was done before them stays.
    boost::shared_ptr<hessiancln::GenericActivity> finish(QWidget& parent);

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void toggleFiltering(bool on);
    void toggleFrom(bool on);
    void toggleTo(bool on);
    void toggleRemoved(bool on);
    void toggleKeep(bool on);
    void changeFilter();
    void setFileNameFilter(const QString& text);
    void treeSelectionChanged(const QItemSelection& selected);
    void treeCheckChanged();
    void showFetchFailure(const QString& text);

private:
    void setUpViews();
    void setUpFilter();
    /// Runs what a field has led to. A failure is shown and leaves the page as it was.
    void atField(const std::function<void()>& work);
    void loadDateLimits();
    void updateDataModel();
    void showModel(std::unique_ptr<CBackedUpDataModel> model);
    wizards::DeleteFilterFields filterFields() const;
    bool wantsRemoval(QWidget& parent) const;

    std::unique_ptr<Ui::DeleteSelectPage> ui_;
    boost::shared_ptr<hessiancln::BackupSet> set_;
    boost::shared_ptr<hessiancln::BackupSetDeleteView> view_;
    std::unique_ptr<CBackedUpDataModel> model_;
    std::vector<hessiancln::backup_sessions> sessions_; ///< asked for once
    CBackedupDataDirOnlyModel* directories_ = nullptr;  ///< owned by the model, like the next
    CBackedupDataFileFilterModel* files_ = nullptr;
    bool viewIsFiltered_ = false; ///< also if the fields have changed since and the agent failed
    bool showingFailure_ = false;
};
