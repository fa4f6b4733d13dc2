// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "prepared_browser.h"

#include <algorithm>
#include <array>
#include <random>
#include <string_view>
#include <utility>

#include <boost/make_shared.hpp>

#include "hessian/value.h"
#include "transport/i_call_dispatcher.h"

namespace bench {

namespace {

using hessiancln::browse_item_info;
using hessiancln::SelectableItemType;

std::string replyWith(const std::vector<browse_item_info>& items) {
    std::string reply("r\x01\0", 3);
    hessianser::writeValue(items, reply);
    hessianser::writeEnd(reply);
    return reply;
}

} // namespace

std::vector<std::string> folderNames(std::size_t count) {
    static constexpr std::array<std::string_view, 10> stems{
        "IMG_",    "Report ", "invoice-",   "notes.",  "Übersicht ",
        "backup_", "DSC",     "Letter to ", "résumé ", "x"};
    static constexpr std::array<std::string_view, 5> ends{".JPG", ".docx", "", ".txt", ".Pdf"};
    std::vector<std::string> names;
    names.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        names.push_back(std::string(stems[i % stems.size()]) + std::to_string(i / stems.size()) +
                        std::string(ends[i % ends.size()]));
    std::shuffle(names.begin(), names.end(), std::mt19937(1));
    return names;
}

class PreparedBrowser::Agent final : public hessiancln::ICallDispatcher {
public:
    Agent(const std::vector<std::string>& names, bool areFolders)
        : ICallDispatcher(0, "") {
        top_ = replyWith({{SelectableItemType::Drive, "C:", false, 0}});
        const auto type = areFolders ? SelectableItemType::Folder : SelectableItemType::File;
        std::vector<browse_item_info> items;
        items.reserve(names.size());
        for (const std::string& name : names)
            items.push_back({type, name, !areFolders, 1});
        drive_ = replyWith(items);
    }

    std::string sendRequest(const std::string&, const std::string& request) override {
        ++calls;
        return request.find("C:") == std::string::npos ? top_ : drive_;
    }

    std::size_t calls = 0;

private:
    std::string top_;
    std::string drive_;
};

PreparedBrowser::PreparedBrowser(const std::vector<std::string>& names, bool areFolders)
    : agent_(boost::make_shared<Agent>(names, areFolders)) {}

boost::shared_ptr<hessiancln::DataSourceBrowser> PreparedBrowser::browser() const {
    return boost::make_shared<hessiancln::DataSourceBrowser>(agent_, "browser", false, 0u,
                                                             std::string());
}

std::size_t PreparedBrowser::calls() const {
    return agent_->calls;
}

} // namespace bench
