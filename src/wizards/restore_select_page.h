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
namespace wizards {
struct RestoreFile;
}

/// What to restore from a set, and as of which time.
class RestoreSelectPage : public StoredItemsPage, public ui::GrowingPage {
    Q_OBJECT
public:
    /// Throws what the first request for the set's content throws.
    explicit RestoreSelectPage(boost::shared_ptr<hessiancln::BackupSet> set,
                               QWidget* parent = nullptr);
    ~RestoreSelectPage() override;

    /// The restore of the checked items; null if they are only groups that turned out to be empty.
    /// Throws what the calls throw.
    boost::shared_ptr<hessiancln::RestoreActivityInitiator> prepareRestore();

    /// Checks and shows the file. Returns false if it doesn't exist. Throws what the calls throw.
    bool tick(const wizards::RestoreFile& file);

    /// The root of the tree that contains the checked items.
    BackedUpNode& root() const;
    /// Whether the whole set is checked and no filter hides anything.
    bool isWholeSet() const;
    /// Seconds since 1970 UTC; 0 without a limit.
    std::int32_t upTo() const { return span().to; }
    /// The size in bytes of a file whose generation was selected, or that was ticked with its size;
    /// no value for others.
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
    /// Narrows the span so that the chosen generation of a file is its newest. Returns whether the
    /// span changed.
    bool narrowTo(std::int32_t chosen, const CGenerationSelectModel& generations);
    /// Shows what was stored up to that time.
    void limitTo(std::int32_t upTo);
    void letChooseGeneration(std::int64_t file, const QStringList& path);

    std::unique_ptr<Ui::RestoreSelectPage> ui_;
    bool suspended_ = false; ///< no new view while several fields change
    boost::shared_ptr<hessiancln::BackupSet> set_;
    boost::shared_ptr<hessiancln::BackupSetRestoreView> view_;
    std::map<std::int64_t, std::int64_t> sizes_; ///< of files in the view, as far as known
};
