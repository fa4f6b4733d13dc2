// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/models/viewing_agent.h"

#include <stdexcept>
#include <utility>

#include <boost/make_shared.hpp>

#include "hessian/value.h"
#include "transport/invoke_exception.h"

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
    constexpr std::string_view start("c\x01\0m\0\x0bgetSubItems", 17);
    hessianser::Cursor in(request);
    if (!in.startsWith(start))
        throw std::logic_error("no such method");
    in.skip(start.size());
    const auto id = hessianser::readValue<std::int64_t>(in);
    calls_ += (calls_.empty() ? "" : " ") + std::to_string(id);
    const auto found = items.find(id);
    if (found == items.end())
        throw hessiancln::invoke_exception("There is no item ") << id;
    std::string reply("r\x01\0", 3);
    hessianser::writeValue(found->second, reply);
    hessianser::writeEnd(reply);
    return reply;
}
