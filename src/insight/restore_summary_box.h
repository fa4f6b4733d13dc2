// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QGroupBox>

class QWizardPage;

namespace Ui {
class RestoreSummaryBox;
}
namespace wizards {
struct RestorePages;
}

/// Summarises the restore on a page of the wizard if it can be the last page. Sends no requests to
/// the agent.
class RestoreSummaryBox : public QGroupBox {
    Q_OBJECT
public:
    /// Inserts itself into the page, which owns it.
    RestoreSummaryBox(const wizards::RestorePages& pages, QWizardPage& page);
    ~RestoreSummaryBox() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void reserveRoom();
    void refresh();

    std::unique_ptr<wizards::RestorePages> pages_;
    QWizardPage& page_;
    std::unique_ptr<Ui::RestoreSummaryBox> ui_;
};

namespace insight {

/// Adds such a box to each page that can be the last one.
void addRestoreSummary(const wizards::RestorePages& pages);

} // namespace insight
