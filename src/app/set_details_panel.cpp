// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/set_details_panel.h"

#include <QLabel>
#include <QScopedValueRollback>

#include "app/open_backup_set.h"
#include "app/set_details_text.h"
#include "ui/remote_action.h"

namespace app {

namespace {

void fill(const SetDetailsPanel::Labels& labels, const SetDetails& details) {
    labels.valLastBackup.setText(details.valLastBackup);
    labels.valFileGens.setText(details.valFileGens);
    labels.valSize.setText(details.valSize);
    labels.valItems.setText(details.valItems);
    labels.valSchedule.setText(details.valSchedule);
    labels.valRetention.setText(details.valRetention);
}

} // namespace

SetDetailsPanel::Facts SetDetailsPanel::factsOfAgent(std::int32_t setId) {
    const auto set = openBackupSet(setId);
    auto lastBackup = set->getLastActivityOfType(hessiancln::ActivityType::Backup);
    return {std::move(lastBackup), set->getOverview()};
}

SetDetailsPanel::SetDetailsPanel(QWidget& page, const Labels& labels, Source source)
    : page_(page)
    , labels_(labels)
    , source_(std::move(source)) {}

void SetDetailsPanel::show(std::int32_t setId) {
    // While a box shows a failure, each heartbeat would stack another one on top.
    if (reading_)
        return;
    const QScopedValueRollback<bool> reading(reading_, true);
    ui::remoteAction(*page_.window(), tr("Error checking backup set properties"), ui::Cursor::arrow,
                     [&] {
                         const Facts facts = source_(setId);
                         fill(labels_, setDetails(facts.lastBackup, facts.overview));
                         hasBackedUpData_ = facts.overview.status.on_line_file_count > 0;
                     });
}

void SetDetailsPanel::clear() {
    fill(labels_, {});
}

} // namespace app
