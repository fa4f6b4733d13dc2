// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/restore_summary_box.h"

#include <QBoxLayout>
#include <QEvent>
#include <QWizard>

#include "insight/restore_summary.h"
#include "models/backed_up_node.h"
#include "ui_restore_summary_box.h"
#include "wizards/restore_directory_destination.h"
#include "wizards/restore_flow.h"
#include "wizards/restore_location_page.h"
#include "wizards/restore_select_page.h"
#include "wizards/select_data_source_page.h"

namespace insight {

namespace {

using wizards::RestorePages;

/// The minimum number of characters that fit on a line.
constexpr int charsOfLine = 60;

RestoreTarget targetOf(const RestoreLocationPage& page) {
    switch (page.target()) {
    case RestoreLocationPage::Target::original:
        return RestoreTarget::original;
    case RestoreLocationPage::Target::otherDirectory:
        return RestoreTarget::otherDirectory;
    case RestoreLocationPage::Target::otherComputer:
        break;
    }
    return RestoreTarget::otherComputer;
}

RestoreSummary summaryOf(const RestorePages& pages) {
    RestoreSummary summary;
    if (const auto upTo = pages.items.upTo(); upTo != 0)
        summary.upTo = upTo;
    summary.isWholeSet = pages.items.isWholeSet();
    if (summary.isWholeSet)
        summary.chosen = {pages.status.on_line_file_count, 0, false, pages.status.on_line_data_size,
                          0};
    else
        summary.chosen = chosenItems(
            pages.items.root(), [&pages](std::int64_t id) { return pages.items.knownSize(id); });
    summary.target = targetOf(pages.location);
    summary.computer = pages.source.computerName();
    summary.directory = pages.directory.destinationPath();
    return summary;
}

} // namespace

void addRestoreSummary(const RestorePages& pages) {
    for (QWizardPage* page :
         {static_cast<QWizardPage*>(&pages.location), static_cast<QWizardPage*>(&pages.directory)})
        new RestoreSummaryBox(pages, *page); // owned by the page
}

} // namespace insight

RestoreSummaryBox::RestoreSummaryBox(const wizards::RestorePages& pages, QWizardPage& page)
    : QGroupBox(&page)
    , pages_(std::make_unique<wizards::RestorePages>(pages))
    , page_(page)
    , ui_(std::make_unique<Ui::RestoreSummaryBox>()) {
    ui_->setupUi(this);
    reserveRoom();
    // Above the spacer at the end of the page, if there is one.
    auto* layout = static_cast<QBoxLayout*>(page.layout());
    const int last = layout->count() - 1;
    layout->insertWidget(layout->itemAt(last)->spacerItem() ? last : last + 1, this);
    connect(&pages.wizard, &QWizard::currentIdChanged, this, &RestoreSummaryBox::refresh);
    connect(&page, &QWizardPage::completeChanged, this, &RestoreSummaryBox::refresh);
    refresh();
}

RestoreSummaryBox::~RestoreSummaryBox() = default;

/// A wizard determines its height before the texts are set, and doesn't grow for them.
void RestoreSummaryBox::reserveRoom() {
    insight::RestoreSummary longest;
    longest.chosen = {9'999'999, 999'999, true, 0, 1};
    ui_->labelSummary->setText(insight::summaryLines(longest).join(QLatin1Char('\n')));
    ui_->labelSummary->setMinimumHeight(
        ui_->labelSummary->heightForWidth(insight::charsOfLine * fontMetrics().averageCharWidth()));
}

void RestoreSummaryBox::refresh() {
    if (pages_->wizard.currentPage() != &page_)
        return;
    const bool isLast = &page_ == static_cast<QWizardPage*>(&pages_->directory) ||
                        pages_->location.target() == RestoreLocationPage::Target::original;
    setVisible(isLast);
    if (isLast)
        ui_->labelSummary->setText(
            insight::summaryLines(insight::summaryOf(*pages_)).join(QLatin1Char('\n')));
}

void RestoreSummaryBox::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        reserveRoom();
        refresh();
    }
    QGroupBox::changeEvent(event);
}
