// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>

#include <boost/shared_ptr.hpp>

#include "wizards/stored_items_page.h"

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

/// What is to be deleted from the storage of a set.
class DeleteSelectPage : public StoredItemsPage {
    Q_OBJECT
public:
    /// Raises what the first look at the set raises.
    explicit DeleteSelectPage(boost::shared_ptr<hessiancln::BackupSet> set,
                              QWidget* parent = nullptr);
    ~DeleteSelectPage() override;

    /// Deletes what is checked, or removes the set if that is everything and the user wants so, in
    /// front of `parent`. What the agent does now; null if the user gave up. Raises what the calls
    /// raise; what was done before them stays.
    boost::shared_ptr<hessiancln::GenericActivity> finish(QWidget& parent);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void fieldsPutBack() override;

private slots:
    void toggleFiltering(bool on);
    void toggleFrom(bool on);
    void toggleTo(bool on);
    void toggleRemoved(bool on);
    void toggleKeep(bool on);
    void changeDate();
    void changeFilter();

private:
    void setUpFilter();
    void updateDataModel();
    wizards::DeleteFilterFields filterFields() const;
    /// Nothing if the user was asked and gave no answer.
    std::optional<bool> wantsRemoval(QWidget& parent) const;

    std::unique_ptr<Ui::DeleteSelectPage> ui_;
    boost::shared_ptr<hessiancln::BackupSet> set_;
    boost::shared_ptr<hessiancln::BackupSetDeleteView> view_;
};
