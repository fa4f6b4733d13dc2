// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <string>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include "api/backup_set.h"
#include "api/client_connection.h"
#include "hessian/serialize_exception.h"
#include "tests/support/bytes.h"
#include "tests/support/loopback_server.h"
#include "tests/support/scripted_dispatcher.h"
#include "transport/invoke_exception.h"
#include "transport/transport_mode.h"

namespace {

using namespace hessiancln;
using support::bytes;
using support::LoopbackServer;
using support::Peer;

/// Answers one HTTP request, whose body is `request`, with `reply`; both as in `bytes`.
LoopbackServer::Script posted(std::string path, std::string request, std::string reply) {
    return [=](Peer& peer) {
        const std::string head = "POST " + path + " HTTP/1.1\r\n";
        const std::string received = peer.open().receiveUntil(bytes(request));
        EXPECT_EQ(received.substr(0, head.size()), head);
        const std::string body = bytes(reply);
        peer.send("HTTP/1.1 200 OK\r\nContent-Type: application/binary\r\nContent-Length: " +
                  std::to_string(body.size()) + "\r\n\r\n" + body);
        peer.closePolitely();
    };
}

/// Two hexadecimal digits.
std::string hex(std::size_t byte) {
    static constexpr char digits[] = "0123456789ABCDEF";
    return {digits[byte >> 4], digits[byte & 15]};
}

const char release[] = "c 01 00 m 00 07 'Release' z";

/// The behaviour of an object that was never given a dispatcher.
class OwnDispatcherTest : public testing::Test {
protected:
    ~OwnDispatcherTest() override { transportMode = 0; }

    template <class Proxy>
    static boost::shared_ptr<Proxy> proxyAt(const std::string& url, bool autoRelease) {
        return boost::make_shared<Proxy>(url, autoRelease, 0u, std::string());
    }
};

TEST_F(OwnDispatcherTest, TheFirstCallMakesAnHttpDispatcherAndKeepsIt) {
    LoopbackServer server(
        LoopbackServer::Mode::tls,
        {posted("/api", "c 01 00 m 00 11 'getTarnClientType' z", "r 01 00 I 00 00 00 01 z"),
         posted("/api", "c 01 00 m 00 06 'logout' z", "r 01 00 z")});
    const auto root = proxyAt<ClientConnection>(server.url(), false);
    EXPECT_FALSE(root->getDispatcher());
    EXPECT_EQ(root->getTarnClientType(), 1);
    const auto dispatcher = root->getDispatcher();
    EXPECT_TRUE(dispatcher);
    root->logout();
    EXPECT_EQ(root->getDispatcher(), dispatcher);
    EXPECT_EQ(server.connections(), 2u);
}

TEST_F(OwnDispatcherTest, IsHandedToTheChildren) {
    LoopbackServer server(LoopbackServer::Mode::plain,
                          {posted("/api", "c 01 00 m 00 0A 'backup_set' I 00 00 00 01 z",
                                  "r 01 00 r t 00 18 'com.norvel.api.BackupSet' S 00 01 'u' z")});
    const auto root = proxyAt<ClientConnection>(server.url(), false);
    const auto set = root->backup_set(1);
    EXPECT_EQ(set->getDispatcher(), root->getDispatcher());
    const auto agent = boost::make_shared<support::ScriptedDispatcher>();
    set->setDispatcher(agent);
    agent->expectRelease("u");
}

TEST_F(OwnDispatcherTest, TheTransportModeChoosesIt) {
    LoopbackServer server(LoopbackServer::Mode::tls, [](Peer& peer) {
        const auto frame = peer.open().receiveFrame();
        EXPECT_EQ(frame.message, bytes("c 01 00 m 00 06 'logout' z"));
        peer.send(support::responseFrame(frame.id, bytes("r 01 00 z"))).expectClose();
    });
    transportMode = 1;
    proxyAt<ClientConnection>(server.url(), false)->logout();
    EXPECT_TRUE(server.waitForEnded(1));
}

TEST_F(OwnDispatcherTest, AProxyThatWasNeverCalledIsReleasedAllTheSame) {
    LoopbackServer server(LoopbackServer::Mode::tls, posted("/set/1", release, "r 01 00 z"));
    proxyAt<BackupSet>(server.url("/set/1"), true).reset();
    EXPECT_EQ(server.connections(), 1u);
}

TEST_F(OwnDispatcherTest, AReferenceInAReplyThatIsRefusedIsReleasedAllTheSame) {
    LoopbackServer server(LoopbackServer::Mode::plain, posted("/set/1", release, "r 01 00 z"));
    const auto agent = boost::make_shared<support::ScriptedDispatcher>();
    const auto root = boost::make_shared<ClientConnection>(agent, "here", false, 0u, std::string());
    const std::string url = server.url("/set/1");
    ASSERT_LT(url.size(), 256u);
    agent->expect("here", "c 01 00 m 00 0A 'backup_set' I 00 00 00 01 z",
                  "r 01 00 r S 00 " + hex(url.size()) + " '" + url + "' N");
    EXPECT_THROW(root->backup_set(1), hessianser::serialize_exception);
    EXPECT_EQ(server.connections(), 1u);
}

TEST_F(OwnDispatcherTest, AnAgentThatIsGoneKeepsNobodyFromDroppingAProxy) {
    const std::string url = "https://127.0.0.1:" + std::to_string(support::closedPort()) + "/set";
    auto set = proxyAt<BackupSet>(url, true);
    EXPECT_THROW(set->getID(), invoke_exception);
    EXPECT_NO_THROW(set.reset());
}

TEST_F(OwnDispatcherTest, AUrlThatIsNoneKeepsNobodyFromDroppingAProxy) {
    auto set = proxyAt<BackupSet>("nonsense", true);
    EXPECT_THROW(set->getID(), invoke_exception);
    EXPECT_NO_THROW(set.reset());
}

} // namespace
