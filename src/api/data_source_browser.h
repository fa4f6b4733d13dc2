// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/backup_set_credentials.h"
#include "api/backup_set_item.h"
#include "api/browser_records.h"
#include "api/remote_object.h"

namespace hessiancln {

/// Browses what can be backed up on a computer, and creates items from it.
class DataSourceBrowser : public RemoteObject {
public:
    static constexpr std::string_view family = "DataSourceBrowser";
    using RemoteObject::RemoteObject;

    using Credentials = boost::shared_ptr<BackupSetCredentials>;
    using Exclusion = boost::shared_ptr<BackupSetFileItem>;
    using Inclusion = boost::shared_ptr<BackupSetInclusionItem>;
    using RegexExclusion = boost::shared_ptr<BackupSetRegexExclusion>;

    Exclusion createExclusionItem(const std::string& computer, const std::string& path);
    /// `generations`: how many generations of each file to keep.
    Inclusion createInclusionItem(const std::string& computer, const std::string& path,
                                  std::int32_t generations);
    RegexExclusion createRegexExclusion(const std::string& computer, const std::string& path,
                                        const std::string& expression);
    /// The agent's full name for the source that the user typed.
    std::string expandToFullPath(const std::string& name);
    Credentials getCurrentCredentials();
    /// Repeat after each change of the object.
    void setCurrentCredentials(const Credentials& value);
    std::vector<PreDefinedBrowseItem> getPredefinedItems(const std::string& computer);
    /// The children of a path; the top level if it is empty.
    std::vector<browse_item_info> getSubItems(const std::string& computer, const std::string& path);
    /// New credentials of the class that the computer needs.
    Credentials neededCredentials(const std::string& computer);
    /// The children of a node of the network; the top level if `path` is empty.
    std::vector<net_item_info> networkDiscovery(const std::string& path);
};

} // namespace hessiancln
