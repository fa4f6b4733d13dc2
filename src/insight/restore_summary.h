// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include <QString>
#include <QStringList>

class BackedUpNode;

/// What a restore is about to do, in words, for the last look before it starts.
namespace insight {

/// What is ticked in a tree of stored items, as far as folders were opened.
struct ChosenItems {
    std::int64_t files = 0;
    std::int64_t folders = 0;
    bool hasUnopened = false; ///< a ticked folder wasn't opened: there may be more in it
    std::int64_t bytes = 0;   ///< of the files whose size is known
    std::int64_t filesOfUnknownSize = 0;
};

/// The size of a file by its id, if it is known.
using KnownSize = std::function<std::optional<std::int64_t>(std::int64_t)>;

/// Looks at what is there; asks the agent for nothing.
ChosenItems chosenItems(BackedUpNode& root, const KnownSize& sizeOf);

enum class RestoreTarget { original, otherDirectory, otherComputer };

struct RestoreSummary {
    std::optional<std::int64_t> upTo; ///< seconds since 1970 UTC; nothing for the newest state
    ChosenItems chosen;
    bool isWholeSet = false; ///< then `chosen` has the figures of the set
    RestoreTarget target = RestoreTarget::original;
    QString computer;
    QString directory;
};

/// One line for each thing that there is to know.
QStringList summaryLines(const RestoreSummary& summary);

} // namespace insight
