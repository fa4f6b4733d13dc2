// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include <boost/shared_ptr.hpp>

#include "api/backup_set.h"
#include "api/data_source_browser.h"

namespace hessiancln {

/// A browser that can also create backup sets.
class DataBrowserWithSetCreation : public DataSourceBrowser {
public:
    static constexpr std::string_view className = "DataBrowserWithSetCreation";
    using DataSourceBrowser::DataSourceBrowser;

    /// Creates a set for the computer. It isn't one of the agent's sets until
    /// `ClientConnection::addBackupSet`.
    boost::shared_ptr<BackupSet> createBackupSet(const std::string& computer);
};

} // namespace hessiancln
