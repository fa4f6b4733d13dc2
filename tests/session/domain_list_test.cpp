// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "session/connection.h"
#include "session/text.h"
#include "tests/session/session_fixture.h"
#include "tests/session/web_server.h"
#include "tests/support/bytes.h"

namespace {

using session::readDomainList;
using session_tests::webPage;
using session_tests::WebServer;
using support::bytes;
using support::closedPort;
using testing::ElementsAre;
using testing::IsEmpty;

class DomainList : public session_tests::SessionTest {
protected:
    /// The list from a server that replies with `reply`, as UTF-8.
    static std::vector<std::string> read(const std::string& reply) {
        WebServer server([&reply](const std::string&) { return webPage(bytes(reply)); });
        return asUtf8(readDomainList(server.url()));
    }

    static std::vector<std::string> asUtf8(const QStringList& domains) {
        std::vector<std::string> texts;
        for (const QString& domain : domains)
            texts.push_back(session::toWire(domain));
        return texts;
    }
};

TEST_F(DomainList, KeepsTheAgentsOrder) {
    EXPECT_THAT(read("r 01 00 V S 00 04 'WORK' S 00 04 'HOME' S 00 03 'LAB' z z"),
                ElementsAre("WORK", "HOME", "LAB"));
}

TEST_F(DomainList, IsUtf8OnTheWire) {
    EXPECT_THAT(read("r 01 00 V S 00 03 'B' C3 BC 'R' z z"), ElementsAre("B\xC3\xBCR"));
}

TEST_F(DomainList, MayBeEmpty) {
    EXPECT_THAT(read("r 01 00 V z z"), IsEmpty());
}

TEST_F(DomainList, AsksTheEntryPoint) {
    WebServer server([](const std::string&) { return webPage(bytes("r 01 00 V z z")); });
    readDomainList(server.url());
    EXPECT_THAT(server.requestLines(), ElementsAre("POST /api HTTP/1.1"));
    EXPECT_THAT(server.bodies(), ElementsAre(bytes("c 01 00 m 00 13 'getAvailableDomains' z")));
}

TEST_F(DomainList, OfAnAbsentAgentIsEmpty) {
    EXPECT_THAT(readDomainList("127.0.0.1:" + std::to_string(closedPort())), IsEmpty());
}

TEST_F(DomainList, OfAnAddressThatIsNoneIsEmpty) {
    EXPECT_THAT(readDomainList("127.0.0.1:backup"), IsEmpty());
}

TEST_F(DomainList, InPlaceOfAFaultIsEmpty) {
    EXPECT_THAT(read("f S 00 07 'message' S 00 02 'No' z"), IsEmpty());
}

TEST_F(DomainList, WithGarbageBehindGoodNamesIsEmpty) {
    EXPECT_THAT(read("r 01 00 V S 00 04 'WORK' I 00 00 00 01 z z"), IsEmpty());
}

TEST_F(DomainList, TakesNoLockAndTouchesNoProcessValue) {
    bool free = false;
    WebServer server([&free](const std::string&) {
        free = session::g_connectionMutex.try_lock();
        if (free)
            session::g_connectionMutex.unlock();
        return webPage(bytes("r 01 00 V z z"));
    });
    readDomainList(server.url());
    EXPECT_TRUE(free);
    expectNoSession();
    expectUntouchedKind();
}

} // namespace
