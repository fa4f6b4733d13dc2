// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/browser_records.h"

namespace hessiancln {
class DataSourceBrowser;
}

namespace models {

class LazyNode;

/// The type of a hidden root.
constexpr hessiancln::SelectableItemType rootType{14};

/// A computer as a browser sees it, shared by all nodes of a tree.
struct BrowsedComputer {
    std::string name; ///< UTF-8
    boost::shared_ptr<hessiancln::DataSourceBrowser> browser;
};

/// The result of listing a folder.
struct FolderListing {
    std::vector<hessiancln::browse_item_info> items; ///< in display order
    bool noAccess = false;                           ///< the agent couldn't list it
};

/// Requests the content of the folder of `node`, under the wait cursor. Throws no `std::exception`:
/// an unreadable folder is no reason to interrupt the user.
FolderListing listFolder(const BrowsedComputer& computer, const LazyNode& node);

} // namespace models
