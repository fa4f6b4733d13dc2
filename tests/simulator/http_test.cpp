// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/simulator/agent_test.h"

using namespace std::string_literals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

class Http : public AgentTest {
protected:
    void SetUp() override { start(); }

    /// A valid request in which `from` is replaced.
    std::string altered(std::string_view from, std::string_view to) {
        std::string request = raw::post(agent_->port(), "/api", raw::call("getTarnClientType"));
        const std::size_t at = request.find(from);
        if (at == std::string::npos)
            throw std::logic_error("nothing to alter");
        return request.replace(at, from.size(), to);
    }

    std::string send(const std::string& request) {
        return raw::exchange(agent_->port(), tls(), request);
    }

    void expectRefused(const std::string& request, const std::string& status,
                       const std::string& violation) {
        EXPECT_EQ(send(request), "HTTP/1.1 " + status);
        EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr(violation)));
        EXPECT_THAT(agent_->callTexts(), IsEmpty());
    }
};

TEST_F(Http, AnswersABootstrapCall) {
    EXPECT_EQ(post("c\x01\0m\0\x11getTarnClientTypez"s), "r\x01\0I\0\0\0\x08z"s);
    EXPECT_THAT(agent_->callTexts(), ElementsAre("ClientConnection.getTarnClientType()"));
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Http, AnswersWithoutTls) {
    start({.plain = true});
    EXPECT_EQ(post(raw::call("getTarnClientType")), "r\x01\0I\0\0\0\x08z"s);
}

TEST_F(Http, AnswersOneRequestAfterTheOtherOnAConnectionThatIsKept) {
    raw::Connection connection(agent_->port(), true);
    const std::string response = "HTTP/1.1 200 OK\r\nServer: tarn-agent-simulator\r\n"
                                 "Content-Length: 9\r\nConnection: keep-alive\r\n\r\n"s +
                                 "r\x01\0I\0\0\0\x08z"s;
    for (int i = 0; i < 2; ++i) {
        connection.send(altered("Connection: close\r\n", ""));
        EXPECT_EQ(connection.receive(response.size()), response);
    }
}

TEST_F(Http, TakesARequestByteForByte) {
    raw::Connection connection(agent_->port(), true);
    for (const char byte : altered("POST", "POST"))
        connection.send({&byte, 1});
    EXPECT_THAT(connection.receiveRest(), HasSubstr("200 OK"));
}

TEST_F(Http, RefusesAnotherMethod) {
    expectRefused(altered("POST", "GET"), "405 Method Not Allowed", "method is GET");
}

TEST_F(Http, RefusesAMissingHost) {
    expectRefused(altered("Host:", "Toast:"), "400 Bad Request", "Host");
}

TEST_F(Http, RefusesAHostWithoutPort) {
    expectRefused(altered(":" + std::to_string(agent_->port()), ""), "400 Bad Request", "Host");
}

TEST_F(Http, RefusesAnotherUserAgent) {
    expectRefused(altered("HessianCln/1.0", "HessianCln/1.1"), "403 Forbidden", "User-Agent");
}

TEST_F(Http, RefusesAContentType) {
    expectRefused(altered("Connection:", "Content-Type: text/plain\r\nConnection:"),
                  "415 Unsupported Media Type", "Content-Type");
}

TEST_F(Http, RefusesAMissingContentLength) {
    expectRefused(altered("Content-Length: 24", "Content-Size: 24"), "411 Length Required",
                  "Content-Length");
}

TEST_F(Http, RefusesAnUnknownTarget) {
    expectRefused(altered("/api", "/apples"), "404 Not Found", "/apples");
}

TEST_F(Http, RefusesWhatIsNoHttp) {
    expectRefused("Hello, is anybody there?\r\n\r\n", "400 Bad Request", "neither HTTP");
}

TEST_F(Http, RefusesSessionCallsBeforeTheLogin) {
    EXPECT_THAT(post(raw::call("backup_sets_info")), HasSubstr("no method 'backup_sets_info'"));
    EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr("backup_sets_info")));
}

TEST_F(Http, RefusesACallToASessionObject) {
    logIn();
    const std::string target = root_.substr(agent_->baseUrl().size());
    EXPECT_EQ(send(raw::post(agent_->port(), target, raw::call("backup_sets_info"))),
              "HTTP/1.1 403 Forbidden");
    EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr("over HTTP")));
}

TEST_F(Http, TakesAReleaseOfASessionObject) {
    logIn();
    const std::string target = root_.substr(agent_->baseUrl().size());
    EXPECT_EQ(send(raw::post(agent_->port(), target, raw::call("Release"))), raw::reply());
    EXPECT_THAT(agent_->liveObjects(), IsEmpty());
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Http, RefusesAReleaseOfTheEntryPoint) {
    EXPECT_THAT(post(raw::call("Release")), HasSubstr("no method 'Release'"));
    EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr("Release")));
}

TEST_F(Http, RefusesABodyThatIsNoCall) {
    EXPECT_THAT(post("garbage"), HasSubstr("isn't a call"));
    EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr("isn't a call")));
}

TEST_F(Http, TakesAConnectionWithoutARequestInItsStride) {
    { raw::Connection connection(agent_->port(), true); }
    { raw::Connection connection(agent_->port(), false); }
    EXPECT_EQ(post(raw::call("getTarnClientType")), "r\x01\0I\0\0\0\x08z"s);
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

} // namespace
