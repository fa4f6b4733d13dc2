// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/data_source_browser.h"
#include "transport/i_call_dispatcher.h"

/// An agent with one browser whose folders and networks a test defines. It records its calls and
/// refuses those it doesn't know.
class BrowsingAgent final : public hessiancln::ICallDispatcher {
public:
    using Folder = std::vector<hessiancln::browse_item_info>;
    using Network = std::vector<hessiancln::net_item_info>;

    BrowsingAgent();

    /// A browser of the agent. Its destruction makes no call.
    static boost::shared_ptr<hessiancln::DataSourceBrowser>
    browser(const boost::shared_ptr<BrowsingAgent>& agent);

    std::map<std::string, Folder> folders;   ///< by path
    std::map<std::string, Network> networks; ///< by path
    std::function<void()> onCall = [] {};    ///< runs in each call

    /// The calls since the last call of this function, one per line, as in "getSubItems(pc, C:)".
    std::string takeCalls();

    std::string sendRequest(const std::string& url, const std::string& request) override;

private:
    std::string calls_;
};

inline hessiancln::browse_item_info folderNamed(std::string name) {
    return {hessiancln::SelectableItemType::Folder, std::move(name), false, 0};
}
inline hessiancln::browse_item_info fileNamed(std::string name) {
    return {hessiancln::SelectableItemType::File, std::move(name), true, 1};
}
inline hessiancln::browse_item_info driveNamed(std::string name) {
    return {hessiancln::SelectableItemType::Drive, std::move(name), false, 0};
}
