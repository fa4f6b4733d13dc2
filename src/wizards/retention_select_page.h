// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <memory>

#include <QWizardPage>

#include <boost/shared_ptr.hpp>

#include "wizards/retention_units.h"

class QCheckBox;

namespace Ui {
class RetentionSelectPage;
}

namespace hessiancln {
class BackupSet;
class RetentionRule;
class RetentionRuleManager;
} // namespace hessiancln

/// How long a backup set's data is kept. Each set gets its own rule, so that no other set is
/// affected.
class RetentionSelectPage : public QWizardPage {
    Q_OBJECT
public:
    using Set = boost::shared_ptr<hessiancln::BackupSet>;

    explicit RetentionSelectPage(QWidget* parent = nullptr);
    ~RetentionSelectPage() override;

    /// Shows the rule of the set; without one, the defaults stay. Exceptions of the remote calls
    /// propagate.
    void load(const Set& set);
    /// Writes the settings. Exceptions of the remote calls propagate, and completed writes aren't
    /// rolled back.
    void apply(const Set& set);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void on_checkCleanupFiles_clicked(bool checked);
    void on_checkLocalKeepAllGens_clicked(bool checked);

private:
    /// A box and the rule it represents.
    struct Interval {
        QCheckBox* box;
        wizards::IntervalRule rule;
    };

    std::array<Interval, 3> intervals() const;
    void checkInterval(hessiancln::RetentionTimeUnit validFor);
    void loadCleanup(hessiancln::RetentionRule& rule);
    void loadLocalStorage(hessiancln::BackupSet& set, hessiancln::RetentionRule& rule);
    void write(hessiancln::RetentionRuleManager& manager, hessiancln::RetentionRule& rule) const;
    void writeCleanup(hessiancln::RetentionRule& rule) const;

    std::unique_ptr<Ui::RetentionSelectPage> ui_;
};
