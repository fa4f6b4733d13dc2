// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/entry_point.h"

#include <algorithm>
#include <string_view>

#include "api/sspi_login_info.h"
#include "simulator/remote/client_connection.h"

namespace simulator {
namespace {

using hessianser::Binary;
using LoginInfo = hessiancln::basic_sspi_login_info<Handed>;

constexpr std::string_view clientVersion = "13.0.0.0";

/// A token follows its little-endian length.
std::string unframed(const Binary& framed) {
    if (framed.size() < 4)
        throw Violation("the token has no length");
    std::uint32_t length = 0;
    for (std::size_t i = 4; i-- > 0;)
        length = length << 8 | framed[i];
    if (length != framed.size() - 4)
        throw Violation("the token announces " + std::to_string(length) + " of " +
                        std::to_string(framed.size() - 4) + " bytes");
    return {framed.begin() + 4, framed.end()};
}

Binary framed(const std::string& token) {
    Binary result;
    result.reserve(4 + token.size());
    for (int shift = 0; shift < 32; shift += 8)
        result.push_back(static_cast<std::uint8_t>(token.size() >> shift & 0xFF));
    result.insert(result.end(), token.begin(), token.end());
    return result;
}

} // namespace

EntryPoint::EntryPoint(World& world, const Options& options, References& references,
                       std::string baseUrl)
    : Servant(nullptr)
    , world_(world)
    , options_(options)
    , references_(references)
    , baseUrl_(std::move(baseUrl)) {
    implements("ClientConnection");
    on("getTarnClientType", [this] { return world_.clientType; });
    on("getAvailableDomains", [this] { return options_.domains; });
    on("login", [this](const std::string& url, const std::string& version, const std::string& user,
                       const Secret& password, std::int32_t flag) {
        checkClient(url, version);
        checkUser(user, password.text, flag);
        return openSession(user);
    });
    on("sspi_login",
       [this](const std::string& url, const std::string& version, const Binary& token) {
           checkClient(url, version);
           const std::string bare = unframed(token);
           if (!options_.integratedLogon)
               throw Refusal("Integrated logon isn't available on this agent.");
           const LogonStep step = options_.integratedLogon(bare);
           LoginInfo info{framed(step.token), step.user, step.domain, {}};
           if (step.loggedIn)
               info.conn.url = references_.handOut(openSession(step.domain + "\\" + step.user));
           return info;
       });
}

void EntryPoint::checkClient(const std::string& url, const std::string& version) const {
    if (url != baseUrl_)
        throw Violation("the base URL '" + url + "' isn't that of the call, " + baseUrl_);
    if (version != clientVersion)
        throw Violation("clients of the version '" + version + "' aren't known");
}

void EntryPoint::checkUser(const std::string& user, const std::string& password,
                           std::int32_t flag) const {
    if (flag != 0 && flag != 1)
        throw Violation("the login flag is " + std::to_string(flag));
    if (flag == 0 && !(user.empty() && password.empty()))
        throw Violation("a user or a password comes with the login flag 0");
    if (user.empty()) {
        if (!options_.guest)
            throw Refusal("A user name is needed to log in.");
        return;
    }
    const std::size_t backslash = user.find('\\');
    const bool inDomain = backslash != std::string::npos;
    const auto& domains = options_.domains;
    if (inDomain &&
        std::find(domains.begin(), domains.end(), user.substr(0, backslash)) == domains.end())
        throw Refusal("The domain '" + user.substr(0, backslash) + "' isn't known.");
    if (user.substr(inDomain ? backslash + 1 : 0) != options_.user || password != options_.password)
        throw Refusal("Unknown user name or bad password.");
}

std::shared_ptr<Servant> EntryPoint::openSession(const std::string& user) {
    auto session = std::make_shared<Session>(Session{baseUrl_, user.empty() ? "guest" : user});
    return std::make_shared<ClientConnection>(std::move(session), world_);
}

} // namespace simulator
