// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QWizardPage>

#include <boost/shared_ptr.hpp>

namespace hessiancln {
class BackupSet;
}

namespace Ui {
class SetNamePage;
}

/// The name of a new set, which no other set of the agent has.
class SetNamePage : public QWizardPage {
    Q_OBJECT
public:
    explicit SetNamePage(QWidget* parent = nullptr);
    ~SetNamePage() override;

    /// Raises what the set's call raises.
    void apply(const boost::shared_ptr<hessiancln::BackupSet>& set);

    bool isComplete() const override;
    /// Asks the agent for the names that are taken. A failure ends the wizard and goes to the one
    /// who runs it.
    bool validatePage() override;

public slots:
    void on_editSetName_textChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    QString name() const;

    std::unique_ptr<Ui::SetNamePage> ui_;
};
