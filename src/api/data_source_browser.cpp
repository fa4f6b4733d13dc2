// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/data_source_browser.h"

#include "api/remote_call.h"

namespace hessiancln {

DataSourceBrowser::Exclusion DataSourceBrowser::createExclusionItem(const std::string& computer,
                                                                    const std::string& path) {
    return call<Exclusion>("createExclusionItem", computer, path);
}

DataSourceBrowser::Inclusion DataSourceBrowser::createInclusionItem(const std::string& computer,
                                                                    const std::string& path,
                                                                    std::int32_t generations) {
    return call<Inclusion>("createInclusionItem", computer, path, generations);
}

DataSourceBrowser::RegexExclusion
DataSourceBrowser::createRegexExclusion(const std::string& computer, const std::string& path,
                                        const std::string& expression) {
    return call<RegexExclusion>("createRegexExclusion", computer, path, expression);
}

std::string DataSourceBrowser::expandToFullPath(const std::string& name) {
    return call<std::string>("expandToFullPath", name);
}

DataSourceBrowser::Credentials DataSourceBrowser::getCurrentCredentials() {
    return call<Credentials>("getCurrentCredentials");
}

void DataSourceBrowser::setCurrentCredentials(const Credentials& value) {
    call<void>("setCurrentCredentials", value);
}

std::vector<PreDefinedBrowseItem>
DataSourceBrowser::getPredefinedItems(const std::string& computer) {
    return call<std::vector<PreDefinedBrowseItem>>("getPredefinedItems", computer);
}

std::vector<browse_item_info> DataSourceBrowser::getSubItems(const std::string& computer,
                                                             const std::string& path) {
    return call<std::vector<browse_item_info>>("getSubItems", computer, path);
}

DataSourceBrowser::Credentials DataSourceBrowser::neededCredentials(const std::string& computer) {
    return call<Credentials>("neededCredentials", computer);
}

std::vector<net_item_info> DataSourceBrowser::networkDiscovery(const std::string& path) {
    return call<std::vector<net_item_info>>("networkDiscovery", path);
}

} // namespace hessiancln
