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

/// Whether one of the sets has the name, in whatever case.
bool isNameTaken(const QString& name, const std::vector<hessiancln::backup_set_info>& sets);

} // namespace wizards

/// The name of a new set, which no other set of the agent has.
class SetNamePage : public QWizardPage {
    Q_OBJECT
public:
    explicit SetNamePage(QWidget* parent = nullptr);
    ~SetNamePage() override;

    /// Raises what the set's call raises.
    void apply(const boost::shared_ptr<hessiancln::BackupSet>& set);

    bool isComplete() const override;
    /// What is typed, without blanks around it.
    QString name() const;
    /// Asks the agent for the names that are taken. A failure ends the wizard and goes to the one
    /// who runs it.
    bool validatePage() override;

public slots:
    void on_editSetName_textChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<Ui::SetNamePage> ui_;
};
