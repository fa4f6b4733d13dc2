// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/models/browsing_agent.h"

#include <stdexcept>
#include <utility>

#include <boost/make_shared.hpp>

#include "hessian/byte_order.h"
#include "hessian/value.h"
#include "transport/invoke_exception.h"

namespace {

std::string readMethod(hessianser::Cursor& in) {
    constexpr std::string_view start("c\x01\0m", 4);
    if (!in.startsWith(start))
        throw std::logic_error("not a call");
    const auto size = hessianser::loadBigEndian<std::uint16_t>(in.pos + start.size());
    in.skip(start.size() + 2);
    std::string method(in.pos, size);
    in.skip(size);
    return method;
}

template <class Items>
std::string replyWith(const std::map<std::string, Items>& known, const std::string& path) {
    const auto found = known.find(path);
    if (found == known.end())
        throw hessiancln::invoke_exception("Access to '") << path << "' is denied";
    std::string reply("r\x01\0", 3);
    hessianser::writeValue(found->second, reply);
    hessianser::writeEnd(reply);
    return reply;
}

} // namespace

BrowsingAgent::BrowsingAgent()
    : ICallDispatcher(0, "") {}

boost::shared_ptr<hessiancln::DataSourceBrowser>
BrowsingAgent::browser(const boost::shared_ptr<BrowsingAgent>& agent) {
    return boost::make_shared<hessiancln::DataSourceBrowser>(agent, "browser", false, 0u,
                                                             std::string());
}

std::string BrowsingAgent::takeCalls() {
    return std::exchange(calls_, {});
}

std::string BrowsingAgent::sendRequest(const std::string&, const std::string& request) {
    hessianser::Cursor in(request);
    const std::string method = readMethod(in);
    onCall();
    if (!calls_.empty())
        calls_ += '\n';
    if (method == "getSubItems") {
        const auto computer = hessianser::readString(in);
        const auto path = hessianser::readString(in);
        calls_ += method + '(' + computer + ", " + path + ')';
        return replyWith(folders, path);
    }
    const auto path = hessianser::readString(in);
    calls_ += method + '(' + path + ')';
    if (method != "networkDiscovery")
        throw std::logic_error("no such method");
    return replyWith(networks, path);
}
