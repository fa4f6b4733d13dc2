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

/// The kind of a root, which nobody sees.
constexpr hessiancln::SelectableItemType rootType{14};

/// A computer as a browser sees it; what all nodes of a tree share.
struct BrowsedComputer {
    std::string name; ///< UTF-8
    boost::shared_ptr<hessiancln::DataSourceBrowser> browser;
};

/// What is known of a folder after it was asked for.
struct FolderListing {
    std::vector<hessiancln::browse_item_info> items; ///< in the order in which they are shown
    bool noAccess = false;                           ///< the agent couldn't list it
};

/// Asks for the content of the folder that `node` stands for, under the wait cursor. Raises
/// no `std::exception`: a folder that can't be read is no reason to disturb anybody.
FolderListing listFolder(const BrowsedComputer& computer, const LazyNode& node);

} // namespace models
