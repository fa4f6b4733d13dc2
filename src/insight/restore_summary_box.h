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

/// Sums up on a page of the restore wizard what is about to happen, as long as the wizard may end
/// there. It asks the agent for nothing.
class RestoreSummaryBox : public QGroupBox {
    Q_OBJECT
public:
    /// Puts itself into the page, which owns it.
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

/// Gives each page on which the wizard may end such a box.
void addRestoreSummary(const wizards::RestorePages& pages);

} // namespace insight
