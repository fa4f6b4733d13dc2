// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/viewing_agent.h"

#include <stdexcept>
#include <utility>

#include <boost/make_shared.hpp>

#include "hessian/value.h"
#include "transport/invoke_exception.h"

namespace support {

ViewingAgent::ViewingAgent()
    : ICallDispatcher(0, "") {}

boost::shared_ptr<hessiancln::BackupSetDataView>
ViewingAgent::view(const boost::shared_ptr<ViewingAgent>& agent) {
    return boost::make_shared<hessiancln::BackupSetDataView>(agent, "view", false, 0u,
                                                             std::string());
}

std::string ViewingAgent::takeCalls() {
    return std::exchange(calls_, {});
}

std::string ViewingAgent::sendRequest(const std::string&, const std::string& request) {
    constexpr std::string_view askForItems("c\x01\0m\0\x0bgetSubItems", 17);
    constexpr std::string_view askForVersions("c\x01\0m\0\x12getItemGenerations", 24);
    hessianser::Cursor in(request);
    const bool ofItems = in.startsWith(askForItems);
    if (!ofItems && !in.startsWith(askForVersions))
        throw std::logic_error("no such method");
    in.skip(ofItems ? askForItems.size() : askForVersions.size());
    const auto id = hessianser::readValue<std::int64_t>(in);
    return ofItems ? reply(items, id, "") : reply(generations, id, "g");
}

template <class Value>
std::string ViewingAgent::reply(const std::map<std::int64_t, Value>& values, std::int64_t id,
                                const char* mark) {
    calls_ += (calls_.empty() ? "" : " ") + std::string(mark) + std::to_string(id);
    const auto found = values.find(id);
    if (found == values.end())
        throw hessiancln::invoke_exception("There is no item ") << id;
    std::string written("r\x01\0", 3);
    hessianser::writeValue(found->second, written);
    hessianser::writeEnd(written);
    return written;
}

} // namespace support
