// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>

#include <QStringList>

#include <boost/shared_ptr.hpp>

#include "ui/screen_fit.h"
#include "wizards/stored_items_page.h"

class BackedUpNode;
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
class RestoreSelectPage : public StoredItemsPage, public ui::GrowingPage {
    Q_OBJECT
public:
    /// Raises what the first look at the set raises.
    explicit RestoreSelectPage(boost::shared_ptr<hessiancln::BackupSet> set,
                               QWidget* parent = nullptr);
    ~RestoreSelectPage() override;

    /// The restore of what is checked; null if that is nothing but groups that turned out empty.
    /// Raises what the calls raise.
    boost::shared_ptr<hessiancln::RestoreActivityInitiator> prepareRestore();

    /// Ticks and shows the file at the end of the path from the top of the set, as it was at
    /// `upTo` (seconds since 1970 UTC) or last. False if it isn't there. Raises what the calls
    /// raise.
    bool tick(const QStringList& path, std::optional<std::int32_t> upTo);

    /// What is ticked stands in the tree below it.
    BackedUpNode& root() const;
    /// All of the set is ticked, and no filter hides anything.
    bool isWholeSet() const;
    /// Seconds since 1970 UTC; 0 without a limit.
    std::int32_t upTo() const { return span().to; }
    /// In bytes, of a file whose generation was chosen.
    std::optional<std::int64_t> knownSize(std::int64_t file) const;

    QSize largestSize() const override;

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
    /// Shows what was stored up to then.
    void limitTo(std::int32_t upTo);
    void letChooseGeneration(std::int64_t file, const QStringList& path);

    std::unique_ptr<Ui::RestoreSelectPage> ui_;
    bool suspended_ = false; ///< no new view while several fields change
    boost::shared_ptr<hessiancln::BackupSet> set_;
    boost::shared_ptr<hessiancln::BackupSetRestoreView> view_;
    std::map<std::int64_t, std::int64_t> sizes_; ///< of files of the view, as far as they are known
};
