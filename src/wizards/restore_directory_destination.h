// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QWizardPage>

#include "api/client_configuration_records.h"
#include "ui/screen_fit.h"

class CRestoreDestinationDirectoryOnlyModel;
class CRestoreDestinationModel;

namespace Ui {
class RestoreDirectoryDestination;
}

/// The directory that data is restored to. A restore creates its own subdirectory there, whose name
/// is fixed for the lifetime of the page.
class RestoreDirectoryDestination : public QWizardPage, public ui::GrowingPage {
    Q_OBJECT
public:
    /// Asks the agent for its path notation. Throws what the calls throw.
    explicit RestoreDirectoryDestination(QWidget* parent = nullptr);
    ~RestoreDirectoryDestination() override;

    /// The id of the `RestoreLocationPage` that provides the computer; -1, the default, if none
    /// precedes this page.
    void setLocationPageId(int id) { locationPageId_ = id; }

    /// Includes the directory that the restore creates.
    QString destinationPath() const;

    void initializePage() override;
    bool isComplete() const override;
    QSize minimumSizeHint() const override;
    QSize largestSize() const override;

public slots:
    void browseDirectoriesToggled(bool checked);
    void dirTreeSelectionChanged();
    void on_editRestoreTo_textChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    void showSubdirectory();
    void showComputer();
    void giveTreeItsModel();
    void synchroniseTree();

    std::unique_ptr<Ui::RestoreDirectoryDestination> ui_;
    QString subdirectory_;
    std::unique_ptr<CRestoreDestinationModel> model_; ///< null until needed, like the next member
    std::unique_ptr<CRestoreDestinationDirectoryOnlyModel> directories_;
    int locationPageId_ = -1;
    hessiancln::ClientOSType osType_;
};
