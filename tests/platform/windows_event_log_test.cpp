// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <windows.h>

#include "platform/event_log.h"

namespace {

/// Stands in for the system's event log, and writes down what it is given.
class FakeEventLog {
public:
    struct Event {
        HANDLE log = nullptr;
        WORD type = 0;
        WORD category = 0;
        DWORD id = 0;
        PSID user = nullptr;
        std::vector<std::string> texts;
        DWORD dataSize = 0;
    };

    FakeEventLog() { current = this; }
    FakeEventLog(const FakeEventLog&) = delete;
    FakeEventLog& operator=(const FakeEventLog&) = delete;
    ~FakeEventLog() { current = nullptr; }

    static HANDLE WINAPI registerSource(LPCWSTR server, LPCWSTR source) {
        current->servers.push_back(server != nullptr);
        current->sources.emplace_back(source);
        return current->handle;
    }
    static BOOL WINAPI report(HANDLE log, WORD type, WORD category, DWORD id, PSID user, WORD count,
                              DWORD dataSize, LPCSTR* texts, LPVOID) {
        current->events.push_back(
            {log, type, category, id, user, {texts, texts + count}, dataSize});
        return TRUE;
    }
    static BOOL WINAPI deregister(HANDLE log) {
        current->closed.push_back(log);
        return TRUE;
    }

    /// What registering returns.
    HANDLE handle = reinterpret_cast<HANDLE>(0x1234);
    std::vector<bool> servers; ///< whether a server was named
    std::vector<std::wstring> sources;
    std::vector<Event> events;
    std::vector<HANDLE> closed;

private:
    static inline FakeEventLog* current = nullptr;
};

TEST(EventLog, GetsAnErrorUnderTheNameOfItsSource) {
    FakeEventLog log;
    const std::string text = "100%s of a test \xF0\x9F\x8C\xB2";
    platform::reportError("HessianClientAPI \xCE\xA9", text);
    EXPECT_THAT(log.servers, testing::ElementsAre(false));
    EXPECT_THAT(log.sources, testing::ElementsAre(L"HessianClientAPI \x03A9"));
    ASSERT_EQ(log.events.size(), 1u);
    const FakeEventLog::Event& event = log.events.front();
    EXPECT_EQ(event.log, log.handle);
    EXPECT_EQ(event.type, EVENTLOG_ERROR_TYPE);
    EXPECT_EQ(event.category, 0);
    EXPECT_EQ(event.id, 0xFFFFFFFF);
    EXPECT_EQ(event.user, nullptr);
    EXPECT_THAT(event.texts, testing::ElementsAre(text));
    EXPECT_EQ(event.dataSize, 0u);
    EXPECT_THAT(log.closed, testing::ElementsAre(log.handle));
}

TEST(EventLog, GetsNothingIfItIsUnreachable) {
    FakeEventLog log;
    log.handle = nullptr;
    platform::reportError("HessianClientAPI", "an error");
    EXPECT_EQ(log.sources.size(), 1u);
    EXPECT_THAT(log.events, testing::IsEmpty());
    EXPECT_THAT(log.closed, testing::IsEmpty());
}

/// The program's message table, which this test program has too.
TEST(EventLog, ShowsTheReportedTextItself) {
    DWORD_PTR texts[] = {reinterpret_cast<DWORD_PTR>(L"100%s of a test")};
    wchar_t shown[256];
    const DWORD length =
        FormatMessageW(FORMAT_MESSAGE_FROM_HMODULE | FORMAT_MESSAGE_ARGUMENT_ARRAY, nullptr,
                       0xFFFFFFFF, 0, shown, 256, reinterpret_cast<va_list*>(texts));
    EXPECT_EQ(std::wstring(shown, length), L"100%s of a test\r\n");
}

} // namespace

extern "C" {
decltype(&RegisterEventSourceW) __imp_RegisterEventSourceW = FakeEventLog::registerSource;
decltype(&ReportEventA) __imp_ReportEventA = FakeEventLog::report;
decltype(&DeregisterEventSource) __imp_DeregisterEventSource = FakeEventLog::deregister;
}
