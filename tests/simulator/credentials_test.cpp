// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/sources.h"
#include "simulator/world/world.h"
#include "tests/simulator/agent_test.h"

using namespace std::string_literals;
using simulator::World;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
namespace sources = simulator::sources;

namespace {

/// The logins that the agent accepts; passwords are never returned.
class Credentials : public AgentTest {
protected:
    void SetUp() override {
        start();
        logIn();
        browser_ = get("createBrowser", raw::int32(0));
        agent_->clearCallLog();
    }
    void TearDown() override {
        for (const std::string& text : agent_->callTexts())
            EXPECT_THAT(text, Not(HasSubstr("sesame")));
    }

    std::string needed(std::string_view computer) {
        return getFrom(browser_, "neededCredentials", raw::text(computer));
    }
    std::string check(const std::string& credentials, std::string_view computer) {
        return callOn(credentials, "check", raw::text(computer));
    }
    void setLogin(const std::string& credentials, std::string_view user,
                  std::string_view password) {
        EXPECT_EQ(callOn(credentials, "setCredentials", raw::text(user) + raw::text(password)),
                  raw::reply());
    }
    std::string use(const std::string& credentials) {
        return callOn(browser_, "setCurrentCredentials", as("BackupSetCredentials", credentials));
    }

    std::string browser_;
};

TEST_F(Credentials, AreOfTheClassThatTheComputerNeeds) {
    const auto types = [this](std::string_view computer) {
        return callOn(needed(computer), "types");
    };
    const std::string base = raw::text("BackupSetCredentials");
    const std::string generic = raw::text("UnixFS_Generic_BackupSetCredentials");
    EXPECT_EQ(types("My Computer"),
              raw::reply(raw::list({base, raw::text("Win32FS_Generic_BackupSetCredentials")})));
    EXPECT_EQ(types("nas01"), raw::reply(raw::list({base, generic})));
    EXPECT_EQ(types("web01.example.net"),
              raw::reply(raw::list({base, generic, raw::text("UnixFS_SSH_BackupSetCredentials")})));
}

TEST_F(Credentials, AreThoseOfTheAgentsComputerAtFirst) {
    const std::string current = getFrom(browser_, "getCurrentCredentials");
    EXPECT_EQ(callOn(current, "getUserName"), raw::reply(raw::text("guest")));
    EXPECT_EQ(callOn(current, "isUsingClientCredentials"), raw::reply("F"));
    EXPECT_EQ(check(current, "My Computer"), raw::reply());
}

TEST_F(Credentials, TakeARightPassword) {
    const std::string fresh = needed("FILESRV");
    EXPECT_EQ(callOn(fresh, "getUserName"), raw::reply(raw::text("")));
    EXPECT_EQ(refusalOf(check(fresh, "FILESRV")), "A user name is needed for the computer "
                                                  "'Microsoft Windows Network\\OFFICE\\FILESRV'.");
    setLogin(fresh, "anna", sources::password);
    EXPECT_EQ(check(fresh, "FILESRV"), raw::reply());
    EXPECT_EQ(callOn(fresh, "getUserName"), raw::reply(raw::text("anna")));
}

TEST_F(Credentials, RefuseAWrongPassword) {
    const std::string fresh = needed("nas01");
    setLogin(fresh, "anna", "wrong");
    EXPECT_EQ(refusalOf(check(fresh, "nas01")), "Unknown user name or bad password.");
    setLogin(fresh, "nobody", sources::password);
    EXPECT_EQ(refusalOf(check(fresh, "nas01")), "Unknown user name or bad password.");
}

TEST_F(Credentials, RefuseAWrongPasswordOnTheAgentsComputerToo) {
    const std::string fresh = needed("My Computer");
    setLogin(fresh, "anna", "wrong");
    EXPECT_EQ(refusalOf(check(fresh, "My Computer")), "Unknown user name or bad password.");
}

TEST_F(Credentials, NeedAUser) {
    EXPECT_EQ(refusalOf(callOn(needed("nas01"), "setCredentials", raw::text("") + raw::text("x"))),
              "A user name is needed.");
}

TEST_F(Credentials, AreOfTheKindOfTheComputer) {
    const std::string ofWindows = needed("FILESRV");
    setLogin(ofWindows, "anna", sources::password);
    EXPECT_EQ(refusalOf(check(ofWindows, "nas01")),
              "The computer 'Unix Hosts\\nas01' needs another kind of login.");
    EXPECT_EQ(refusalOf(check(ofWindows, "nowhere")), "The computer 'nowhere' can't be reached.");
}

TEST_F(Credentials, OfTheAgentItselfAreGoodAtHomeOnly) {
    const std::string fresh = needed("My Computer");
    EXPECT_EQ(callOn(fresh, "setUsingClientCredentials", "T"), raw::reply());
    EXPECT_EQ(callOn(fresh, "isUsingClientCredentials"), raw::reply("T"));
    EXPECT_EQ(check(fresh, "My Computer"), raw::reply());
    EXPECT_EQ(refusalOf(check(fresh, "FILESRV")), "The agent's own account has no access to "
                                                  "'Microsoft Windows Network\\OFFICE\\FILESRV'.");
}

TEST_F(Credentials, TakeAnIdentityFile) {
    const std::string fresh = needed("web01.example.net");
    const auto with = [&](std::string_view user, std::string_view file, std::string_view phrase) {
        return callOn(fresh, "setCredentialsViaKeyFile",
                      raw::text(user) + raw::text(file) + raw::text(phrase));
    };
    EXPECT_EQ(refusalOf(with("backup", "", sources::passphrase)), "An identity file is needed.");
    with("backup", "/tmp/other", sources::passphrase);
    EXPECT_EQ(refusalOf(check(fresh, "web01.example.net")),
              "The server refuses the identity file '/tmp/other'.");
    with("backup", sources::keyFile, "wrong");
    EXPECT_EQ(refusalOf(check(fresh, "web01.example.net")),
              "The passphrase of the identity file is wrong.");
    EXPECT_EQ(with("backup", sources::keyFile, sources::passphrase), raw::reply());
    EXPECT_EQ(check(fresh, "web01.example.net"), raw::reply());
    setLogin(fresh, "backup", "wrong");
    EXPECT_EQ(refusalOf(check(fresh, "web01.example.net")), "Unknown user name or bad password.");
}

TEST_F(Credentials, BecomeAnotherUser) {
    const std::string fresh = needed("web01.example.net");
    const auto sudo = [&](std::string_view user, std::string_view password) {
        return callOn(fresh, "setSudoAs", raw::text(user) + raw::text(password));
    };
    setLogin(fresh, "backup", sources::password);
    EXPECT_EQ(callOn(fresh, "getSudoUser"), raw::reply(raw::text("")));
    EXPECT_EQ(sudo("root", "wrong"), raw::reply());
    EXPECT_EQ(callOn(fresh, "getSudoUser"), raw::reply(raw::text("root")));
    EXPECT_EQ(refusalOf(check(fresh, "web01.example.net")),
              "sudo: a password is required to become 'root'.");
    sudo("root", sources::password);
    EXPECT_EQ(check(fresh, "web01.example.net"), raw::reply());
    EXPECT_EQ(refusalOf(sudo("", "x")), "A password without a user is no SUDO login.");
    EXPECT_EQ(sudo("", ""), raw::reply());
    EXPECT_EQ(callOn(fresh, "getSudoUser"), raw::reply(raw::text("")));
    EXPECT_EQ(check(fresh, "web01.example.net"), raw::reply());
}

TEST_F(Credentials, TellTheAccess) {
    const std::string fresh = needed("web01.example.net");
    const auto access = [&](std::int32_t type, std::string_view path) {
        return callOn(fresh, "setSSHAccessType", raw::int32(type) + raw::text(path));
    };
    setLogin(fresh, "backup", sources::password);
    EXPECT_EQ(callOn(fresh, "getSSHAccessType"), raw::reply(raw::int32(0)));
    EXPECT_EQ(access(1, "/usr/bin/python3"), raw::reply());
    EXPECT_EQ(callOn(fresh, "getSSHAccessType"), raw::reply(raw::int32(1)));
    EXPECT_EQ(callOn(fresh, "getSSHInterpreterPath"), raw::reply(raw::text("/usr/bin/python3")));
    EXPECT_EQ(check(fresh, "web01.example.net"), raw::reply());
    access(0, "perl");
    EXPECT_EQ(refusalOf(check(fresh, "web01.example.net")), "perl: command not found");
    access(2, "");
    EXPECT_EQ(refusalOf(check(fresh, "web01.example.net")), "There is no script to execute.");
    EXPECT_EQ(refusalOf(access(3, "")), "There is no SSH access of the type 3.");
}

TEST_F(Credentials, AreNeededToLookIntoAnotherComputer) {
    const std::string path = raw::text("FILESRV") + raw::text("");
    EXPECT_EQ(refusalOf(callOn(browser_, "getSubItems", path)),
              "Unknown user name or bad password.");
    const std::string fresh = needed("FILESRV");
    EXPECT_EQ(use(fresh), raw::reply());
    setLogin(fresh, "backup", sources::password);
    EXPECT_THAT(callOn(browser_, "getSubItems", path), HasSubstr(raw::text("Shares")));
}

TEST_F(Credentials, StayTheSameObjectToABrowser) {
    const std::string fresh = needed("FILESRV");
    use(fresh);
    setLogin(getFrom(browser_, "getCurrentCredentials"), "anna", "x");
    EXPECT_EQ(callOn(fresh, "getUserName"), raw::reply(raw::text("anna")));
}

TEST_F(Credentials, OfAnotherBrowserAreRefused) {
    const std::string other = get("createBrowser", raw::int32(0));
    EXPECT_EQ(refusalOf(use(getFrom(other, "getCurrentCredentials"))),
              "These credentials belong to another browser.");
    EXPECT_EQ(refusalOf(use(getFrom(other, "neededCredentials", raw::text("nas01")))),
              "These credentials belong to another browser.");
}

TEST_F(Credentials, OfASetAreTakenByAnyBrowser) {
    const std::string ofSet = getFrom(setUrl(1), "getCredentials");
    EXPECT_EQ(callOn(ofSet, "isUsingClientCredentials"), raw::reply("T"));
    EXPECT_EQ(use(ofSet), raw::reply());
}

TEST_F(Credentials, ThatWereReleasedAreRefused) {
    const std::string fresh = needed("My Computer");
    callOn(fresh, "Release");
    EXPECT_THAT(use(fresh), HasSubstr("the object was released"));
    EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr("the object was released")));
}

TEST_F(Credentials, ShowNoPasswordInTheCallLog) {
    const std::string fresh = needed("web01.example.net");
    agent_->clearCallLog();
    setLogin(fresh, "anna", sources::password);
    callOn(fresh, "setSudoAs", raw::text("root") + raw::text(sources::password));
    callOn(fresh, "setCredentialsViaKeyFile",
           raw::text("anna") + raw::text("/k") + raw::text(sources::passphrase));
    use(fresh);
    EXPECT_THAT(
        agent_->callTexts(),
        ElementsAre(
            "UnixFS_Generic_BackupSetCredentials.setCredentials(\"anna\", ***)",
            "UnixFS_SSH_BackupSetCredentials.setSudoAs(\"root\", ***)",
            "UnixFS_SSH_BackupSetCredentials.setCredentialsViaKeyFile(\"anna\", \"/k\", ***)",
            "DataSourceBrowser.setCurrentCredentials(BackupSetCredentials(anna))"));
}

TEST_F(Credentials, ShowNoPasswordThatIsSentInAWrongForm) {
    const std::string reply = callOn(needed("nas01"), "setCredentials",
                                     raw::text("anna") + "s\0\3ses"s + raw::text("ame"));
    EXPECT_THAT(reply, HasSubstr("the value *** isn't written as its kind is"));
    EXPECT_THAT(agent_->violations(),
                ElementsAre(HasSubstr("the value *** isn't written as its kind is")));
}

} // namespace
