// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include <QDialog>
#include <QStringList>

#include "insight/found_files_model.h"
#include "insight/slices.h"

namespace hessiancln {
class ClientConnection;
}
namespace Ui {
class FindFileWindow;
}

/// Looks for files by their names in what sets hold. Results appear as they are found; the search
/// runs in slices, and gives the agent's views back when it ends, is cancelled or the window goes.
class FindFileWindow : public QDialog {
    Q_OBJECT
public:
    /// Where the session is; raises what it raises.
    using Connect = std::function<boost::shared_ptr<hessiancln::ClientConnection>()>;

    explicit FindFileWindow(Connect connect, QWidget* parent = nullptr);
    ~FindFileWindow() override;

    /// The sets to choose from.
    void setSetNames(const insight::SetNames& names);
    /// Chooses one of them; all if it isn't there.
    void chooseSet(std::int32_t setId);

    bool isSearching() const { return slices_.isRunning(); }

signals:
    /// The file at the end of the path, as it was at a time (seconds since 1970 UTC), or as it was
    /// last.
    void restoreRequested(std::int32_t setId, const QStringList& path,
                          std::optional<std::int32_t> upTo);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void setUpTable();
    void find();
    void cancel();
    bool step();
    void end();
    void showProgress();
    void updateEnabling();
    void fillSets();
    void showGenerations();
    void restore();
    std::vector<std::int32_t> chosenSets() const;
    insight::FileSearch::View openView(std::int32_t setId) const;
    /// Null if none is selected.
    const insight::FoundFile* selectedFile() const;

    Connect connect_;
    std::unique_ptr<Ui::FindFileWindow> ui_;
    insight::SetNames names_;
    std::unique_ptr<insight::FileSearch> search_;
    FoundFilesModel found_;
    insight::Slices slices_;
    bool cancelled_ = false;
};
