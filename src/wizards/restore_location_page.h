// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

#include <QWizardPage>

#include <boost/shared_ptr.hpp>

class RestoreDirectoryDestination;
class SelectDataSourcePage;

namespace hessiancln {
class BackupSet;
class DataSourceBrowser;
class GenericActivity;
class RestoreActivityInitiator;
} // namespace hessiancln
namespace Ui {
class RestoreLocationPage;
}

/// Where to restore data, and why. For any destination but the original one, two pages follow,
/// whose input is collected here.
class RestoreLocationPage : public QWizardPage {
    Q_OBJECT
public:
    explicit RestoreLocationPage(boost::shared_ptr<hessiancln::BackupSet> set,
                                 QWidget* parent = nullptr);
    ~RestoreLocationPage() override;

    /// Ids of the pages that follow; -1, the default, if the wizard has no such page.
    void setDataSourcePageId(int id) { dataSourcePageId_ = id; }
    void setDirectoryPageId(int id) { directoryPageId_ = id; }

    /// The destination computer, in UTF-8, and its browser. Each function throws what its call
    /// throws.
    std::string computer() const;
    boost::shared_ptr<hessiancln::DataSourceBrowser> browser() const;

    /// Starts the restore and returns the agent's activity. Throws what the calls throw.
    boost::shared_ptr<hessiancln::GenericActivity>
    start(hessiancln::RestoreActivityInitiator& initiator) const;

    enum class Target { original, otherDirectory, otherComputer };
    Target target() const;

    bool isComplete() const override;
    int nextId() const override;

public slots:
    void on_cmbRestoreReason_currentIndexChanged(int index);
    void selectionChanged(bool checked);

protected:
    void changeEvent(QEvent* event) override;

private:
    void fillReasons();
    SelectDataSourcePage* sourcePage() const;
    RestoreDirectoryDestination* directoryPage() const;

    std::unique_ptr<Ui::RestoreLocationPage> ui_;
    boost::shared_ptr<hessiancln::BackupSet> set_;
    int dataSourcePageId_ = -1;
    int directoryPageId_ = -1;
};
