// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include <QDialog>

#include "insight/found_files_model.h"
#include "insight/slices.h"

namespace hessiancln {
class ClientConnection;
}
namespace Ui {
class FindFileWindow;
}
namespace wizards {
struct RestoreFile;
}

/// Searches the content of sets for files by name. Results appear as they are found; the search
/// runs in slices, and releases the agent's views when it ends or is cancelled, or when the window
/// is destroyed.
class FindFileWindow : public QDialog {
    Q_OBJECT
public:
    /// Returns the session; throws what getting it throws.
    using Connect = std::function<boost::shared_ptr<hessiancln::ClientConnection>()>;

    explicit FindFileWindow(Connect connect, QWidget* parent = nullptr);
    ~FindFileWindow() override;

    /// The sets offered for selection; none while there is no session. Results of the last
    /// session are discarded when the next one begins.
    void setSetNames(const insight::SetNames& names);
    /// Selects one of them; all if it isn't listed.
    void chooseSet(std::int32_t setId);

    bool isSearching() const { return slices_.isRunning(); }

signals:
    void restoreRequested(std::int32_t setId, const wizards::RestoreFile& file);

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
    void forgetFound();
    void showGenerations();
    void restore();
    std::vector<std::int32_t> chosenSets() const;
    insight::FileSearch::View openView(std::int32_t setId) const;
    /// Null without a selection.
    const insight::FoundFile* selectedFile() const;

    Connect connect_;
    std::unique_ptr<Ui::FindFileWindow> ui_;
    insight::SetNames names_;
    std::unique_ptr<insight::FileSearch> search_;
    FoundFilesModel found_;
    insight::Slices slices_;
    bool cancelled_ = false;
};
