// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include <QString>
#include <QStringList>

class BackedUpNode;

/// A description of a restore for a final check before it starts.
namespace insight {

/// The checked items in a tree of stored items, as far as folders were opened.
struct ChosenItems {
    std::int64_t files = 0;
    std::int64_t folders = 0;
    bool hasUnopened = false; ///< a checked folder wasn't opened, so there may be more in it
    std::int64_t bytes = 0;   ///< of the files with known sizes
    std::int64_t filesOfUnknownSize = 0;
};

/// The size of a file by its id, if known.
using KnownSize = std::function<std::optional<std::int64_t>(std::int64_t)>;

/// Examines the loaded items; sends no requests to the agent.
ChosenItems chosenItems(BackedUpNode& root, const KnownSize& sizeOf);

enum class RestoreTarget { original, otherDirectory, otherComputer };

struct RestoreSummary {
    std::optional<std::int64_t> upTo; ///< seconds since 1970 UTC; no value for the newest state
    ChosenItems chosen;
    bool isWholeSet = false; ///< `chosen` then has the figures of the set
    RestoreTarget target = RestoreTarget::original;
    QString computer;
    QString directory;
};

/// One line for each relevant fact.
QStringList summaryLines(const RestoreSummary& summary);

} // namespace insight
