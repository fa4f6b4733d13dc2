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

/// How long what a backup set has backed up is kept. Each set gets a rule of its own, so that no
/// other set is touched.
class RetentionSelectPage : public QWizardPage {
    Q_OBJECT
public:
    using Set = boost::shared_ptr<hessiancln::BackupSet>;

    explicit RetentionSelectPage(QWidget* parent = nullptr);
    ~RetentionSelectPage() override;

    /// Shows the rule of the set; the defaults stay if it has none. Exceptions of the remote calls
    /// go to the caller.
    void load(const Set& set);
    /// Writes what is chosen. Exceptions of the remote calls go to the caller, and what was written
    /// before them stays.
    void apply(const Set& set);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void on_checkCleanupFiles_clicked(bool checked);
    void on_checkLocalKeepAllGens_clicked(bool checked);

private:
    /// A box and what it stands for.
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
