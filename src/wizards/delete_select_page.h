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

/// Selects what to delete from the storage of a set.
class DeleteSelectPage : public StoredItemsPage {
    Q_OBJECT
public:
    /// Throws what the first request for the set's content throws.
    explicit DeleteSelectPage(boost::shared_ptr<hessiancln::BackupSet> set,
                              QWidget* parent = nullptr);
    ~DeleteSelectPage() override;

    /// Deletes the checked items or, if that is everything and the user agrees, removes the set,
    /// with `parent` as the parent. Returns the agent's activity; null if the user cancelled.
    /// Throws what the calls throw; completed steps aren't rolled back.
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
    /// No value if the user was asked and didn't answer.
    std::optional<bool> wantsRemoval(QWidget& parent) const;

    std::unique_ptr<Ui::DeleteSelectPage> ui_;
    boost::shared_ptr<hessiancln::BackupSet> set_;
    boost::shared_ptr<hessiancln::BackupSetDeleteView> view_;
};
