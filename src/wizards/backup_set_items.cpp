// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/backup_set_items.h"

#include <algorithm>
#include <cstdint>

#include "api/checked_cast.h"
#include "session/required.h"
#include "session/text.h"

namespace wizards {

using hessiancln::BackupSetItem;
using hessiancln::BackupSetItemType;
using hessiancln::BackupSetRegexExclusion;
using hessiancln::DataSourceBrowser;
using session::required;

namespace {

using Item = boost::shared_ptr<BackupSetItem>;

constexpr std::int32_t generations = 9999;
constexpr char separator = '\\';

std::string withoutTrailingSeparators(std::string path) {
    path.erase(path.find_last_not_of(separator) + 1);
    return path;
}

void readFilter(const Item& item, StoredItems& stored) {
    const auto filter = hessiancln::checkedCast<BackupSetRegexExclusion>(item);
    const ReadExpression read = readExpression(session::fromWire(filter->getExpression()));
    if (read.custom)
        (filter->getInclusion() ? stored.customExtensions : stored.excludedExtensions) =
            read.custom;
    stored.kinds += read.kinds;
}

std::string rootOf(const std::string& path) {
    return path.substr(0, path.find(separator));
}

std::vector<std::string> rootsOf(const std::vector<models::PathItem>& paths) {
    std::vector<std::string> roots;
    for (const models::PathItem& item : paths) {
        const std::string root = rootOf(item.path);
        if (!root.empty() && std::ranges::find(roots, root) == roots.end())
            roots.push_back(root);
    }
    return roots;
}

Item createPathItem(DataSourceBrowser& browser, const std::string& computer,
                    const models::PathItem& item) {
    if (item.isExclusion)
        return required(browser.createExclusionItem(computer, item.path));
    return required(browser.createInclusionItem(computer, item.path, generations));
}

Item createFilter(DataSourceBrowser& browser, const std::string& computer, const std::string& root,
                  const FileTypeExpression& filter) {
    const auto item =
        required(browser.createRegexExclusion(computer, root, session::toWire(filter.expression)));
    item->setInclusion(filter.inclusion);
    item->setNegate(false);
    item->setCaseSensitive(false);
    item->setMatchDirectories(false);
    return item;
}

} // namespace

StoredItems readItems(hessiancln::BackupSet& set,
                      const std::function<void(const models::PathItem&)>& mark) {
    StoredItems stored;
    for (const Item& item : set.items()) {
        const std::string folder = withoutTrailingSeparators(required(item)->getFolder());
        switch (item->getType()) {
        case BackupSetItemType::Inclusion:
            stored.inclusions.insert(folder);
            mark({folder, false});
            break;
        case BackupSetItemType::Exclusion:
            ++stored.exclusions;
            mark({folder, true});
            break;
        case BackupSetItemType::RegularExpression:
            readFilter(item, stored);
            break;
        }
    }
    return stored;
}

hessiancln::BackupSet::Items createItems(DataSourceBrowser& browser, const std::string& computer,
                                         const std::vector<models::PathItem>& paths,
                                         const std::vector<FileTypeExpression>& filters) {
    hessiancln::BackupSet::Items items;
    for (const models::PathItem& path : paths)
        items.push_back(createPathItem(browser, computer, path));
    for (const std::string& root : rootsOf(paths))
        for (const FileTypeExpression& filter : filters)
            items.push_back(createFilter(browser, computer, root, filter));
    return items;
}

} // namespace wizards
