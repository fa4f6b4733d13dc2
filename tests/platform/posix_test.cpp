// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <string>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <syslog.h>
#include <unistd.h>

#include "platform/event_log.h"
#include "platform/local_server.h"
#include "platform/process_id.h"
#include "platform/standard_streams.h"
#include "platform/user_name.h"

namespace {

TEST(EventLog, GetsAnErrorUnderTheNameOfItsSource) {
    ::openlog("test", LOG_PERROR, LOG_USER); // so that it can be read here too
    ::setlogmask(LOG_MASK(LOG_ERR));
    testing::internal::CaptureStderr();
    platform::reportError("HessianClientAPI", "100%s of a test \xF0\x9F\x8C\xB2");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "test: HessianClientAPI: 100%s of a test \xF0\x9F\x8C\xB2\n");
    ::closelog();
}

/// In a separate process: closes `closed`, then fills the standard streams. The exit status is the
/// next free file descriptor.
[[noreturn]] void placeOfNextFile(std::initializer_list<int> closed, bool fill) {
    // Other descriptors left open by a test runner would change the result.
    ::close_range(3, ~0u, 0);
    for (const int place : closed)
        ::close(place);
    if (fill)
        platform::fillStandardStreams();
    ::_exit(::open("/dev/zero", O_RDONLY));
}

TEST(StandardStreams, AreFilledSoThatNoOtherFileTakesTheirPlace) {
    EXPECT_EXIT(placeOfNextFile({2}, false), testing::ExitedWithCode(2), "");
    EXPECT_EXIT(placeOfNextFile({2}, true), testing::ExitedWithCode(3), "");
    EXPECT_EXIT(placeOfNextFile({0, 2}, true), testing::ExitedWithCode(3), "");
    EXPECT_EXIT(placeOfNextFile({0, 1, 2}, true), testing::ExitedWithCode(3), "");
}

TEST(StandardStreams, StayWhatTheyAreWhereTheyAreOpen) {
    EXPECT_EXIT(placeOfNextFile({}, true), testing::ExitedWithCode(3), "");
    EXPECT_EXIT((platform::fillStandardStreams(), std::fputs("said", stderr), ::_exit(0)),
                testing::ExitedWithCode(0), "^said$");
}

/// A connection of this process to itself.
struct Sockets {
    Sockets() { EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0); }
    Sockets(const Sockets&) = delete;
    Sockets& operator=(const Sockets&) = delete;
    ~Sockets() {
        for (const int end : ends)
            ::close(end);
    }

    int ends[2] = {-1, -1};
};

bool peerIsAnother = false;

TEST(LocalServer, IsOfThisUserOrOfAnother) {
    const Sockets sockets;
    EXPECT_TRUE(platform::isServedByThisUser(sockets.ends[0]));
    peerIsAnother = true;
    EXPECT_FALSE(platform::isServedByThisUser(sockets.ends[0]));
    peerIsAnother = false;
}

TEST(LocalServer, IsOfAnotherUserIfTheSystemDoesntSay) {
    EXPECT_FALSE(platform::isServedByThisUser(-1));
}

TEST(ProcessId, IsTheSystemsOwn) {
    EXPECT_EQ(platform::processId(), static_cast<long>(::getpid()));
    EXPECT_EQ(platform::threadId(), platform::processId()); // as on the first thread of any process
}

TEST(UserName, IsTheAccountOfTheProcessWhateverTheEnvironmentSays) {
    const passwd* account = ::getpwuid(::geteuid());
    const std::string expected = account ? account->pw_name : "";
    ::setenv("USER", "another-user", 1);
    ::setenv("LOGNAME", "another-user", 1);
    EXPECT_EQ(platform::currentWindowsUser(), expected);
}

} // namespace

/// The system's, with another user at the other end if a test wants it.
extern "C" int getsockopt(int socket, int level, int option, void* value,
                          socklen_t* size) noexcept {
    const auto result = ::syscall(SYS_getsockopt, socket, level, option, value, size);
    if (result == 0 && peerIsAnother && level == SOL_SOCKET && option == SO_PEERCRED)
        ++static_cast<ucred*>(value)->uid;
    return static_cast<int>(result);
}
