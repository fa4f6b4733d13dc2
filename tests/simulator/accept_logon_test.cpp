// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <csignal>
#include <map>
#include <stdexcept>

#include <gssapi/gssapi_ext.h>
#include <gssapi/gssapi_krb5.h>

#include "platform/posix/gss_handles.h"
#include "tests/simulator/agent_test.h"
#include "tests/support/child_process.h"
#include "tests/support/heap_in_use.h"
#include "tests/support/kerberos_realm.h"
#include "tests/support/secret_search.h"
#include "tests/support/temporary_file.h"

using namespace std::string_literals;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

namespace {

namespace gss = platform::gss;

/// The start of a GSSAPI text when the mechanism knows the reason.
const std::string unspecified =
    "Unspecified GSS failure.  Minor code may provide more information: ";

char spnegoBytes[] = "\x2b\x06\x01\x05\x05\x02";
gss_OID_desc spnego = {6, spnegoBytes};

/// The client's side of one logon, using GSSAPI directly.
class Initiator {
public:
    explicit Initiator(gss_OID mechanism = &spnego, OM_uint32 flags = GSS_C_CONF_FLAG)
        : mechanism_(mechanism)
        , flags_(flags) {
        std::string name = "OstrandBakSvc/localhost";
        gss_buffer_desc bytes{name.size(), name.data()};
        OM_uint32 minor = 0;
        gss_import_name(&minor, &bytes, GSS_KRB5_NT_PRINCIPAL_NAME, target_.place());
    }

    /// The next token to send; empty if the agent needs no more.
    std::string next(std::string received = {}) {
        gss_buffer_desc input{received.size(), received.data()};
        gss::Buffer sent;
        OM_uint32 minor = 0;
        const OM_uint32 major = gss_init_sec_context(
            &minor, GSS_C_NO_CREDENTIAL, context_.place(), target_.get(), mechanism_, flags_, 0,
            GSS_C_NO_CHANNEL_BINDINGS, &input, nullptr, sent.place(), nullptr, nullptr);
        if (GSS_ERROR(major))
            throw std::runtime_error("the client's side fails");
        complete_ = (major & GSS_S_CONTINUE_NEEDED) == 0;
        return {sent.bytes().begin(), sent.bytes().end()};
    }

    bool complete() const { return complete_; }

private:
    gss_OID mechanism_;
    OM_uint32 flags_;
    gss::Name target_;
    gss::Context context_;
    bool complete_ = false;
};

struct Answer {
    std::string token;
    std::string user;
    std::string domain;
    std::string url; ///< of the session's root; empty without a session
};

/// A text, whose length counts characters, or a binary value.
std::string takeValue(std::string_view& rest) {
    const auto byte = [&rest](std::size_t i) { return static_cast<unsigned char>(rest.at(i)); };
    const bool isText = rest.at(0) == 'S';
    const auto goesOn = [&](std::size_t i) {
        return isText && i < rest.size() && (byte(i) & 0xC0) == 0x80;
    };
    std::size_t end = 3;
    for (std::size_t left = static_cast<std::size_t>(byte(1)) << 8 | byte(2); left > 0; --left)
        do
            ++end;
        while (goesOn(end));
    const std::string value(rest.substr(3, end - 3));
    rest.remove_prefix(end);
    return value;
}

Answer answerIn(const std::string& reply) {
    const std::string head = "r\1\0Mt\0\x1E"s + "com.norvel.api.sspi_login_info";
    if (!reply.starts_with(head))
        throw std::runtime_error("no answer: " + reply);
    std::string_view rest = std::string_view(reply).substr(head.size());
    std::map<std::string, std::string> members;
    for (std::string key; (key = takeValue(rest)) != "conn";)
        members[key] = takeValue(rest);
    return {members["context"].substr(4), members["user"], members["domain"],
            rest == "Nzz" ? std::string() : raw::referenceIn(rest)};
}

class AcceptLogon : public AgentTest {
protected:
    AcceptLogon() { realm.getTicket(); }

    void startAccepting(simulator::Options options = {}) {
        options.acceptLogon = realm.keyTable();
        start(std::move(options));
    }

    std::string send(const std::string& token) {
        return post(raw::call("sspi_login", logonArguments(token)));
    }

    /// A SPNEGO logon, which this agent accepts in a single step.
    void logOn(Initiator& client) {
        const Answer answer = answerIn(send(client.next()));
        EXPECT_EQ(client.next(answer.token), "");
        EXPECT_TRUE(client.complete());
        expectAnna(answer);
    }

    void logOn() {
        Initiator client;
        logOn(client);
    }

    void expectAnna(const Answer& answer) {
        EXPECT_EQ(answer.user, "anna");
        EXPECT_EQ(answer.domain, "TARN.TEST");
        EXPECT_THAT(answer.url, StartsWith(agent_->baseUrl() + "/api/ClientConnection/"));
    }

    support::KerberosRealm realm;
};

TEST_F(AcceptLogon, TakesSpnego) {
    startAccepting();
    logOn();
    EXPECT_THAT(agent_->liveObjects(), SizeIs(1));
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(AcceptLogon, TakesBareKerberosWithMutualAuthentication) {
    startAccepting();
    Initiator client(gss_mech_krb5, GSS_C_MUTUAL_FLAG);
    const Answer answer = answerIn(send(client.next()));
    EXPECT_NE(answer.token, "");
    EXPECT_EQ(client.next(answer.token), "");
    EXPECT_TRUE(client.complete()) << "the client believes the agent";
    expectAnna(answer);
}

TEST_F(AcceptLogon, GivesASessionOnlyFromTheRoundThatCompletes) {
    startAccepting();
    Initiator client(&spnego, GSS_C_MUTUAL_FLAG | GSS_C_DCE_STYLE);
    const Answer first = answerIn(send(client.next()));
    EXPECT_EQ(first.user, "");
    EXPECT_EQ(first.domain, "");
    EXPECT_EQ(first.url, "");
    EXPECT_THAT(agent_->liveObjects(), IsEmpty());
    const std::string second = client.next(first.token);
    ASSERT_NE(second, "");
    expectAnna(answerIn(send(second)));
    EXPECT_THAT(agent_->liveObjects(), SizeIs(1));
}

TEST_F(AcceptLogon, TakesTheKeysThatTheEnvironmentNames) {
    ::setenv("KRB5_KTNAME", realm.keyTable().c_str(), 1);
    simulator::Options options;
    options.acceptLogon = "";
    start(options);
    logOn();
}

TEST_F(AcceptLogon, NamesUsersInLettersBeyondAscii) {
    realm.addUser("Jörg-Žofie");
    realm.getTicket("Jörg-Žofie");
    startAccepting();
    Initiator client;
    const Answer answer = answerIn(send(client.next()));
    EXPECT_EQ(answer.user, "Jörg-Žofie");
    EXPECT_EQ(answer.domain, "TARN.TEST");
}

TEST_F(AcceptLogon, KeepsTheAtSignOfAUsersName) {
    realm.addUser("anna\\@example.net");
    realm.getTicket("anna\\@example.net");
    startAccepting();
    Initiator client;
    const Answer answer = answerIn(send(client.next()));
    EXPECT_EQ(answer.user, "anna\\@example.net");
    EXPECT_EQ(answer.domain, "TARN.TEST");
}

TEST_F(AcceptLogon, RefusesWhatIsNoTokenInTheWordsOfGssapi) {
    startAccepting();
    for (const std::string& token :
         {"garbage"s, "\x60"s, "\x60\x84\xFF\xFF\xFF\xFF"s, std::string(700, '\x60')})
        EXPECT_EQ(refusalOf(send(token)), "Invalid token was supplied");
    EXPECT_THAT(agent_->liveObjects(), IsEmpty());
}

TEST_F(AcceptLogon, RefusesATokenForAnotherKey) {
    simulator::Options options;
    options.acceptLogon = realm.wrongKeyTable();
    start(options);
    Initiator client;
    EXPECT_EQ(refusalOf(send(client.next())),
              unspecified +
                  "Request ticket server OstrandBakSvc/localhost@TARN.TEST kvno 2 enctype "
                  "aes256-cts found in keytab but cannot decrypt ticket");
    EXPECT_THAT(agent_->liveObjects(), IsEmpty());
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(AcceptLogon, RefusesATokenThatCameBefore) {
    startAccepting();
    Initiator client;
    const std::string token = client.next();
    expectAnna(answerIn(send(token)));
    EXPECT_EQ(refusalOf(send(token)), unspecified + "Request is a replay");
    EXPECT_THAT(agent_->liveObjects(), SizeIs(1));
}

TEST_F(AcceptLogon, RefusesAClientThatGoesOnAfterTheEnd) {
    startAccepting();
    Initiator client(&spnego, GSS_C_MUTUAL_FLAG | GSS_C_DCE_STYLE);
    const std::string second = client.next(answerIn(send(client.next())).token);
    expectAnna(answerIn(send(second)));
    EXPECT_EQ(refusalOf(send(second)), "Invalid token was supplied");
    logOn();
}

TEST_F(AcceptLogon, LetsAClientRestart) {
    startAccepting();
    Initiator halfWay(&spnego, GSS_C_MUTUAL_FLAG | GSS_C_DCE_STYLE);
    const Answer first = answerIn(send(halfWay.next()));
    logOn();
    EXPECT_EQ(refusalOf(send(halfWay.next(first.token))), "Invalid token was supplied");
}

TEST_F(AcceptLogon, ForgetsALogonThatARefusalEnded) {
    startAccepting();
    Initiator client(&spnego, GSS_C_MUTUAL_FLAG | GSS_C_DCE_STYLE);
    const std::string second = client.next(answerIn(send(client.next())).token);
    EXPECT_THAT(refusalOf(send("garbage")), StartsWith("Invalid token was supplied"));
    EXPECT_EQ(refusalOf(send(second)), "Invalid token was supplied");
    logOn();
}

TEST_F(AcceptLogon, KeepsNothingOfClientsThatLeaveHalfWay) {
    simulator::Options options;
    options.plain = true; // TLS caches its sessions
    options.recordCalls = false;
    startAccepting(options);
    const auto leaveHalfWay = [this](int times) {
        for (int i = 0; i < times; ++i) {
            Initiator client(&spnego, GSS_C_MUTUAL_FLAG | GSS_C_DCE_STYLE);
            EXPECT_EQ(answerIn(send(client.next())).url, "");
        }
    };
    leaveHalfWay(50);
    const std::size_t before = support::heapInUse();
    leaveHalfWay(200);
    // A context takes more than that; a connection's buffer may or may not exist.
    EXPECT_LT(support::heapInUse(), before + 200 * 1000);
    EXPECT_THAT(agent_->liveObjects(), IsEmpty());
}

TEST_F(AcceptLogon, WritesNoTokenAnywhere) {
    const support::TemporaryFile log;
    simulator::Options options;
    options.logFile = log.path();
    startAccepting(options);
    Initiator client(gss_mech_krb5, GSS_C_MUTUAL_FLAG);
    const std::string token = client.next();
    const std::string answer = answerIn(send(token)).token;
    send(token);
    std::string written = log.text();
    for (const std::string& call : agent_->callTexts())
        written += call;
    EXPECT_THAT(written, HasSubstr("sspi_login"));
    EXPECT_FALSE(support::revealsPartOf(token, written));
    EXPECT_FALSE(support::revealsPartOf(answer, written));
}

TEST(AcceptLogonKeys, HaveToBeThere) {
    const support::KerberosRealm realm;
    simulator::Options options;
    options.acceptLogon = realm.file("missing");
    try {
        const simulator::Simulator agent(options);
        FAIL() << "There are no keys";
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(error.what(), "no keys to accept logons with: No credentials were supplied, or "
                                "the credentials were unavailable or inaccessible: Keytab FILE:" +
                                    realm.file("missing") + " is nonexistent or empty");
    }
}

class AcceptLogonProgram : public AcceptLogon {};

TEST_F(AcceptLogonProgram, TakesItsKeysFromTheCommandLine) {
    support::ChildProcess program(SIMULATOR_PROGRAM,
                                  {"--port", "0", "--accept-logon", realm.keyTable()});
    const std::string line = program.line();
    const std::string base = line.substr(0, line.size() - 1);
    const auto port = static_cast<std::uint16_t>(std::stoi(base.substr(base.rfind(':') + 1)));
    Initiator client;
    const std::string call = raw::call("sspi_login", logonArguments(client.next(), base));
    EXPECT_EQ(answerIn(raw::exchange(port, true, raw::post(port, "/api", call))).user, "anna");
    program.signal(SIGTERM);
    EXPECT_EQ(program.status(), 0);
}

TEST_F(AcceptLogonProgram, DoesNotStartWithoutKeys) {
    support::ChildProcess program(SIMULATOR_PROGRAM,
                                  {"--port", "0", "--accept-logon", realm.file("missing")});
    EXPECT_THAT(program.line(),
                StartsWith("tarn-agent-simulator: no keys to accept logons with: "));
    EXPECT_EQ(program.status(), 1);
}

} // namespace
