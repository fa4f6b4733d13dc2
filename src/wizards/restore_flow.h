// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include <QStringList>

#include <boost/shared_ptr.hpp>

#include "api/backup_set_records.h"

class QWidget;
class QWizard;
class RestoreDirectoryDestination;
class RestoreLocationPage;
class RestoreSelectPage;
class SelectDataSourcePage;

namespace hessiancln {
class BackupSet;
class GenericActivity;
} // namespace hessiancln

namespace wizards {

/// A restore wizard about to be shown. All members live as long as the wizard.
struct RestorePages {
    QWizard& wizard;
    RestoreSelectPage& items;
    RestoreLocationPage& location;
    SelectDataSourcePage& source;
    RestoreDirectoryDestination& directory;
    hessiancln::backup_set_status status; ///< of the set
};

/// A file to start with: checked, as of a time (seconds since 1970 UTC) or its latest version.
struct RestoreFile {
    QStringList path; ///< from the top of the set
    std::optional<std::int32_t> upTo;
    std::optional<std::int64_t> size; ///< of that version, in bytes; no value if unknown
};

/// Lets the user restore from a set, with `parent` as the parent. Returns no value if the user
/// cancelled or the set is empty; otherwise the agent's activity, to be kept until it is shown, or
/// null if there is nothing to do. `prepare` can extend the pages before they are shown. Throws
/// what the calls throw, and std::runtime_error if the file is no longer stored.
std::optional<boost::shared_ptr<hessiancln::GenericActivity>>
restoreFromSet(QWidget& parent, const boost::shared_ptr<hessiancln::BackupSet>& set,
               const std::function<void(const RestorePages&)>& prepare = {},
               const std::optional<RestoreFile>& file = {});

} // namespace wizards
