// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/restore_summary.h"

#include <algorithm>
#include <limits>

#include <QCoreApplication>

#include "models/backed_up_node.h"
#include "ui/locale_text.h"
#include "ui/size_text.h"

namespace insight {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(RestoreSummary)
};

QString counted(std::int64_t count, const QString& one, const QString& many) {
    return count == 1 ? one : many.arg(ui::numberText(count));
}

QString timeLine(const RestoreSummary& summary) {
    return summary.upTo
               ? Texts::tr("As it was: %1").arg(ui::timeText(*summary.upTo, QLocale::ShortFormat))
               : Texts::tr("As it was: at the last backup");
}

QString itemsText(const ChosenItems& chosen) {
    QStringList parts;
    if (chosen.files > 0)
        parts.append(counted(chosen.files, Texts::tr("1 file"), Texts::tr("%1 files")));
    if (chosen.folders > 0)
        parts.append(counted(chosen.folders, Texts::tr("1 folder"), Texts::tr("%1 folders")));
    return parts.isEmpty() ? Texts::tr("nothing") : parts.join(QStringLiteral(", "));
}

QString itemsLine(const RestoreSummary& summary) {
    const QString items = itemsText(summary.chosen);
    if (summary.isWholeSet)
        return Texts::tr("What: the whole set, %1").arg(items);
    return summary.chosen.hasUnopened
               ? Texts::tr("What: at least %1, as not all folders were opened").arg(items)
               : Texts::tr("What: %1").arg(items);
}

QString sizeLine(const ChosenItems& chosen) {
    const QString size = ui::sizeToString(static_cast<double>(chosen.bytes));
    if (!chosen.hasUnopened && chosen.filesOfUnknownSize == 0)
        return Texts::tr("Size: %1").arg(size);
    return chosen.bytes > 0 ? Texts::tr("Size: at least %1").arg(size)
                            : Texts::tr("Size: not known before the restore");
}

QString targetLine(const RestoreSummary& summary) {
    switch (summary.target) {
    case RestoreTarget::original:
        return Texts::tr("Where to: the original location");
    case RestoreTarget::otherDirectory:
        return Texts::tr("Where to: %1").arg(summary.directory);
    case RestoreTarget::otherComputer:
        break;
    }
    return Texts::tr("Where to: %1 on %2").arg(summary.directory, summary.computer);
}

QString conflictLine(const RestoreSummary& summary) {
    return summary.target == RestoreTarget::original
               ? Texts::tr("Existing files: the agent doesn't report whether it replaces them")
               : Texts::tr("Existing files: kept, because the restore creates its own directory");
}

} // namespace

ChosenItems chosenItems(BackedUpNode& root, const KnownSize& sizeOf) {
    ChosenItems chosen;
    models::walk(root, [&](BackedUpNode& node) {
        const bool isChecked = node.checkState() == models::CheckState::Checked;
        if (isChecked && node.isLeaf()) {
            ++chosen.files;
            const auto size = sizeOf(node.item().id);
            // The agent may send any number.
            chosen.bytes += std::clamp<std::int64_t>(
                size.value_or(0), 0, std::numeric_limits<std::int64_t>::max() - chosen.bytes);
            chosen.filesOfUnknownSize += size ? 0 : 1;
        } else if (isChecked && node.parent()) {
            ++chosen.folders;
            chosen.hasUnopened = chosen.hasUnopened || !node.isFetched();
        }
        return node.checkState() != models::CheckState::Unchecked;
    });
    return chosen;
}

QStringList summaryLines(const RestoreSummary& summary) {
    return {timeLine(summary), itemsLine(summary), sizeLine(summary.chosen), targetLine(summary),
            conflictLine(summary)};
}

} // namespace insight
