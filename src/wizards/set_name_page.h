// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

#include <QWizardPage>

#include <boost/shared_ptr.hpp>

namespace hessiancln {
class BackupSet;
struct backup_set_info;
} // namespace hessiancln

namespace Ui {
class SetNamePage;
}

namespace wizards {

/// Whether a set already has the name, ignoring case.
bool isNameTaken(const QString& name, const std::vector<hessiancln::backup_set_info>& sets);

} // namespace wizards

/// The name of a new set, which must be unique on the agent.
class SetNamePage : public QWizardPage {
    Q_OBJECT
public:
    explicit SetNamePage(QWidget* parent = nullptr);
    ~SetNamePage() override;

    /// Throws what the set's call throws.
    void apply(const boost::shared_ptr<hessiancln::BackupSet>& set);

    bool isComplete() const override;
    /// The trimmed input.
    QString name() const;
    /// Requests the existing names from the agent. A failure ends the wizard and is rethrown to its
    /// caller.
    bool validatePage() override;

public slots:
    void on_editSetName_textChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<Ui::SetNamePage> ui_;
};
