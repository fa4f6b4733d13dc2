// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>

#include <QStringList>

#include <boost/shared_ptr.hpp>

#include "wizards/stored_items_page.h"

class CGenerationSelectModel;

namespace hessiancln {
class BackupSet;
class BackupSetRestoreView;
class RestoreActivityInitiator;
} // namespace hessiancln
namespace Ui {
class RestoreSelectPage;
}

/// What is to be restored of a set, and as it was when.
class RestoreSelectPage : public StoredItemsPage {
    Q_OBJECT
public:
    /// Raises what the first look at the set raises.
    explicit RestoreSelectPage(boost::shared_ptr<hessiancln::BackupSet> set,
                               QWidget* parent = nullptr);
    ~RestoreSelectPage() override;

    /// The restore of what is checked; null if that is nothing but groups that turned out empty.
    /// Raises what the calls raise.
    boost::shared_ptr<hessiancln::RestoreActivityInitiator> prepareRestore();

    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void fieldsPutBack() override;

protected slots:
    void treeSelectionChanged(const QItemSelection& selected) override;

private slots:
    void toggleFiltering(bool on);
    void toggleFrom(bool on);
    void toggleTo(bool on);
    void toggleRemoved(bool on);
    void changeDate();
    void changeFilter();
    void fileListSelectionChanged();
    void showFileGenerations();

private:
    /// Seconds since 1970 UTC; 0 means no limit.
    struct Span {
        std::int32_t from = 0;
        std::int32_t to = 0;
        std::int32_t removed = 0;
    };

    void setUpFilter();
    void updateDataModel();
    Span span() const;
    void showFilter(bool on);
    void switchFilterOn();
    /// Narrows the span to one whose newest generation of a file is the chosen one. Whether it was
    /// another span before.
    bool narrowTo(std::int32_t chosen, const CGenerationSelectModel& generations);
    void letChooseGeneration(std::int64_t file, const QStringList& path);

    std::unique_ptr<Ui::RestoreSelectPage> ui_;
    bool suspended_ = false; ///< no new view while several fields change
    boost::shared_ptr<hessiancln::BackupSet> set_;
    boost::shared_ptr<hessiancln::BackupSetRestoreView> view_;
};
