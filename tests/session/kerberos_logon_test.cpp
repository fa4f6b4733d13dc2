// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// Integrated logon with this system's own security operations, in a realm that issues tickets, to
// an agent that verifies them.
#include <filesystem>
#include <fstream>
#include <sstream>

#include "api/client_connection.h"
#include "session/integrated_logon.h"
#include "simulator/objects/failures.h"
#include "tests/session/agent_fixture.h"
#include "tests/support/clock_offset.h"
#include "tests/support/forwarding_security_operations.h"
#include "tests/support/heap_in_use.h"
#include "tests/support/kerberos_realm.h"
#include "tests/support/secret_search.h"
#include "tests/support/temporary_file.h"
#include "transport/invoke_exception.h"

namespace {

using hessiancln::invoke_exception;
using session_tests::textOf;
using simulator::Options;
using support::ClockOffset;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::SizeIs;
using namespace std::chrono_literals;

/// The system's own operations, recording all tokens that they write.
class RecordingOperations : public support::ForwardingSecurityOperations {
public:
    RecordingOperations()
        : ForwardingSecurityOperations(*platform::securityOperations()) {}

    std::vector<std::string> tokens;

    platform::SecurityStatus
    initializeContext(platform::SecurityHandle& credentials, platform::SecurityHandle& context,
                      const std::string& targetName, std::span<std::uint8_t> input,
                      std::span<std::uint8_t> output, std::uint32_t& outputSize) override {
        const auto status = ForwardingSecurityOperations::initializeContext(
            credentials, context, targetName, input, output, outputSize);
        if (outputSize > 0)
            tokens.emplace_back(output.begin(), output.begin() + outputSize);
        return status;
    }
};

/// A base class, so that it exists before the agent, which takes its keys from it.
struct InRealm {
    support::KerberosRealm realm;
};

class KerberosLogon : protected InRealm, public session_tests::AgentTest {
protected:
    KerberosLogon()
        : KerberosLogon(accepting) {}
    explicit KerberosLogon(Options (*optionsIn)(support::KerberosRealm&))
        : AgentTest(optionsIn(realm)) {}

    static Options accepting(support::KerberosRealm& realm) {
        Options options;
        options.guest = false;
        options.acceptLogon = realm.keyTable();
        return options;
    }

    void logOn() { session::connectToAgent(agent.address(), "", "", 0); }

    std::string refusal() {
        return textOf<invoke_exception>([this] { logOn(); });
    }

    /// One round as in the agent's log, with any token size.
    testing::Matcher<const std::string&> step() const {
        return MatchesRegex("ClientConnection.sspi_login\\(\"" + agent.baseUrl() +
                            "\", \"13.0.0.0\", <[0-9]+ bytes>\\)");
    }

    /// Expects a login without a user name, which this agent refuses.
    void expectTheLoginOfAGuest() {
        EXPECT_EQ(refusal(), "A user name is needed to log in.");
        EXPECT_EQ(agent.callTexts().back(), "ClientConnection.login(\"" + agent.baseUrl() +
                                                "\", \"13.0.0.0\", \"\", ***, 0)");
        expectNoSession();
    }

    const std::string unspecified =
        "Unspecified GSS failure.  Minor code may provide more information: ";
};

TEST_F(KerberosLogon, IsDoneInOneStepAndMovesToTheStream) {
    realm.getTicket();
    logOn();
    EXPECT_THAT(agent.callTexts(), ElementsAre(askKind, step()));
    EXPECT_TRUE(session::connectedToAgent());
    EXPECT_EQ(session::currentUser(), session::currentWindowsUser());
    EXPECT_FALSE(session::getConnection()->getTarnClientInfo().empty());
}

TEST_F(KerberosLogon, GetsItsTicketWithClientKeys) {
    realm.writeClientKeys();
    logOn();
    EXPECT_TRUE(session::connectedToAgent());
}

TEST_F(KerberosLogon, IsThatOfAUserWithLettersBeyondAscii) {
    realm.addUser("Jörg-Žofie");
    realm.getTicket("Jörg-Žofie");
    logOn();
    EXPECT_TRUE(session::connectedToAgent());
}

TEST_F(KerberosLogon, IsNotTriedForAUserWithAName) {
    realm.getTicket();
    logIn();
    EXPECT_THAT(agent.callTexts(), ElementsAre(askKind, loginText("demo")));
    EXPECT_EQ(session::currentUser(), "demo");
}

TEST_F(KerberosLogon, IsNotTriedWithoutATicket) {
    expectTheLoginOfAGuest();
}

TEST_F(KerberosLogon, IsNotTriedWithATicketThatHasExpired) {
    realm.getTicket();
    const ClockOffset later(11h);
    expectTheLoginOfAGuest();
}

TEST_F(KerberosLogon, RaisesNothingWhenTheKdcIsAway) {
    realm.getTicket();
    realm.stopKdc();
    logOn();
    EXPECT_THAT(agent.callTexts(), ElementsAre(askKind));
    expectNoSession();
}

TEST_F(KerberosLogon, RaisesNothingWhenTheKdcFindsTheClockWrong) {
    realm.getTicket();
    const ClockOffset wrong(1h);
    logOn();
    EXPECT_THAT(agent.callTexts(), ElementsAre(askKind));
    expectNoSession();
}

TEST_F(KerberosLogon, ShowsTheAgentsTextWhenTheAgentFindsTheClockWrong) {
    realm.getTicket();
    realm.getServiceTicket();
    const ClockOffset wrong(1h);
    EXPECT_EQ(refusal(), unspecified + "Clock skew too great");
    expectNoSession();
}

TEST_F(KerberosLogon, SucceedsAfterOneThatFailed) {
    realm.getTicket();
    realm.getServiceTicket();
    {
        const ClockOffset wrong(1h);
        EXPECT_THROW(logOn(), invoke_exception);
    }
    logOn();
    EXPECT_TRUE(session::connectedToAgent());
}

/// An agent whose keys differ from the realm's.
class KerberosLogonWithOtherKeys : public KerberosLogon {
protected:
    KerberosLogonWithOtherKeys()
        : KerberosLogon(withOtherKeys) {}

    static Options withOtherKeys(support::KerberosRealm& realm) {
        Options options;
        options.acceptLogon = realm.wrongKeyTable();
        return options;
    }
};

TEST_F(KerberosLogonWithOtherKeys, ShowsTheAgentsText) {
    realm.getTicket();
    EXPECT_EQ(refusal(),
              unspecified +
                  "Request ticket server OstrandBakSvc/localhost@TARN.TEST kvno 2 enctype "
                  "aes256-cts found in keytab but cannot decrypt ticket");
    EXPECT_THAT(agent.callTexts(), ElementsAre(askKind, step()));
    expectNoSession();
}

/// An agent that replies to each token without one. It refuses the tenth, so that a client that
/// begins again each time comes to an end.
class KerberosLogonWithoutAnswer : public KerberosLogon {
protected:
    KerberosLogonWithoutAnswer()
        : KerberosLogon(withoutTokens) {}

    static Options withoutTokens(support::KerberosRealm&) {
        Options options;
        options.integratedLogon = [step = 0](const std::string&) mutable {
            if (++step == 10)
                throw simulator::Refusal("That was the tenth token.");
            return simulator::LogonStep{};
        };
        return options;
    }
};

TEST_F(KerberosLogonWithoutAnswer, EndsAfterOneCall) {
    realm.getTicket();
    logOn();
    EXPECT_THAT(agent.callTexts(), ElementsAre(askKind, step()));
    expectNoSession();
}

/// An agent that writes each call to a file.
class KerberosLogonOnRecord : public KerberosLogon {
protected:
    KerberosLogonOnRecord()
        : KerberosLogon(logging) {}

    static Options logging(support::KerberosRealm& realm) {
        Options options = accepting(realm);
        options.logFile = realm.file("agent.log");
        return options;
    }

    static std::string textOfFile(const std::string& path) {
        std::ostringstream text;
        text << std::ifstream(path).rdbuf();
        return text.str();
    }
};

TEST_F(KerberosLogonOnRecord, WritesNoSecretAnywhere) {
    realm.getTicket();
    const support::TemporaryFile trace;
    RecordingOperations system;
    hessiancln::ClientConnection bootstrap(agent.baseUrl() + "/api", false, 2, trace.path());
    boost::shared_ptr<hessiancln::ClientConnection> root;
    const auto logOnTraced = [&] {
        return session::performIntegratedLogon(root, bootstrap, agent.baseUrl(), "13.0.0.0",
                                               system);
    };
    ASSERT_TRUE(logOnTraced());
    const ClockOffset wrong(1h);
    std::string written = textOf<invoke_exception>([&] { logOnTraced(); });
    for (const std::string& call : agent.callTexts())
        written += call;
    written += trace.text() + textOfFile(realm.file("agent.log"));

    EXPECT_THAT(written, AllOf(HasSubstr("sspi_login"), HasSubstr("sendRequest LEAVE"),
                               HasSubstr("Clock skew too great")));
    ASSERT_THAT(system.tokens, SizeIs(2));
    for (const std::string& token : system.tokens)
        EXPECT_FALSE(support::revealsPartOf(token, written));
    for (const char* secret : {"tickets", "service.keytab"})
        EXPECT_FALSE(support::revealsPartOf(textOfFile(realm.file(secret)), written)) << secret;
}

/// Without TLS, which caches its sessions, and without a log of calls.
class ManyKerberosLogons : public KerberosLogon {
protected:
    ManyKerberosLogons()
        : KerberosLogon(forgetful) {}

    static Options forgetful(support::KerberosRealm& realm) {
        Options options = accepting(realm);
        options.plain = true;
        options.recordCalls = false;
        return options;
    }

    void logOnAndOff(int times) {
        for (int i = 0; i < times; ++i) {
            session::connectToAgent(agent.baseUrl(), "", "", 0);
            ASSERT_TRUE(session::connectedToAgent());
            session::disconnectFromAgent();
        }
    }

    static std::ptrdiff_t openFiles() {
        using std::filesystem::directory_iterator;
        return std::distance(directory_iterator("/proc/self/fd"), directory_iterator());
    }
};

TEST_F(ManyKerberosLogons, LeaveNothingBehind) {
    realm.getTicket();
    logOnAndOff(50);
    const std::size_t heap = support::heapInUse();
    const std::ptrdiff_t files = openFiles();
    logOnAndOff(1000);
    // Leaking one context or set of credentials per logon would be a multiple of that; the buffers
    // of a few connections may or may not exist.
    EXPECT_LT(support::heapInUse(), heap + 1000 * 300);
    EXPECT_LE(openFiles(), files + 4);
}

} // namespace
