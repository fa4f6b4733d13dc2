// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <cstdlib>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "platform/event_log.h"
#include "platform/foreground.h"
#include "platform/process_id.h"
#include "platform/security_context.h"
#include "platform/user_name.h"

#ifndef _WIN32
#include <pwd.h>
#include <syslog.h>
#include <unistd.h>
#endif

namespace {

TEST(ProcessId, ThreadsHaveNumbersOfTheirOwn) {
    const long here = platform::threadId();
    long there = here;
    std::thread([&] { there = platform::threadId(); }).join();
    EXPECT_NE(here, there);
    EXPECT_EQ(platform::threadId(), here);
}

TEST(SecurityHandle, HoldsNothingWhileBothWordsAreZero) {
    EXPECT_FALSE(platform::SecurityHandle{}.held());
    EXPECT_TRUE((platform::SecurityHandle{1, 0}.held()));
    EXPECT_TRUE((platform::SecurityHandle{0, 1}.held()));
}

TEST(SecurityOperations, AreThereWhereLogonIsAvailable) {
    EXPECT_EQ(platform::securityOperations() != nullptr, platform::integratedLogonAvailable());
}

TEST(Foreground, MayBePassedAtAnyTime) {
    EXPECT_NO_THROW(platform::allowSetForeground());
}

#ifndef _WIN32

TEST(EventLog, GetsAnErrorUnderTheNameOfItsSource) {
    ::openlog("test", LOG_PERROR, LOG_USER); // so that it can be read here too
    ::setlogmask(LOG_MASK(LOG_ERR));
    testing::internal::CaptureStderr();
    platform::reportError("HessianClientAPI", "100%s of a test \xF0\x9F\x8C\xB2");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "test: HessianClientAPI: 100%s of a test \xF0\x9F\x8C\xB2\n");
    ::closelog();
}

TEST(ProcessId, IsTheSystemsOwn) {
    EXPECT_EQ(platform::processId(), static_cast<long>(::getpid()));
    EXPECT_EQ(platform::threadId(), platform::processId()); // as on every first thread
}

TEST(UserName, IsTheAccountOfTheProcessWhateverTheEnvironmentSays) {
    const passwd* account = ::getpwuid(::geteuid());
    const std::string expected = account ? account->pw_name : "";
    ::setenv("USER", "somebody-else", 1);
    ::setenv("LOGNAME", "somebody-else", 1);
    EXPECT_EQ(platform::currentWindowsUser(), expected);
}

TEST(SecurityOperations, AreMissingOnThisSystem) {
    EXPECT_FALSE(platform::integratedLogonAvailable());
}

#endif

} // namespace
