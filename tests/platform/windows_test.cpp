// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/file_dialog_history.h"
#include "platform/library_search.h"
#include "platform/plugin_folder.h"
#include "platform/process_id.h"
#include "platform/session_folder.h"
#include "platform/user_name.h"
#include "platform/windows/wide_text.h"
#include "tests/support/system/process.h"

namespace {

using support::process::setEnvironment;

DWORD sessionOfProcess = 1;

BOOL WINAPI getSession(DWORD process, DWORD* session) {
    EXPECT_EQ(process, GetCurrentProcessId());
    *session = sessionOfProcess;
    return TRUE;
}

TEST(WideText, CarriesWhatNoCodePageHolds) {
    const std::string utf8 = "J\xC3\xBCrgen \xCE\xA9mega \xF0\x9F\x8C\xB2";
    EXPECT_EQ(platform::toWide(utf8), L"J\x00FCrgen \x03A9mega \xD83C\xDF32");
    EXPECT_EQ(platform::toUtf8(L"J\x00FCrgen \x03A9mega \xD83C\xDF32"), utf8);
}

TEST(WideText, PutsAMarkInPlaceOfWhatIsNoUtf8) {
    EXPECT_EQ(platform::toWide("a\xFF"), L"a\xFFFD");
}

TEST(WideText, OfNothingIsNothing) {
    EXPECT_EQ(platform::toWide(""), L"");
    EXPECT_EQ(platform::toUtf8(L""), "");
}

TEST(ProcessId, IsTheSystemsOwn) {
    EXPECT_EQ(platform::processId(), static_cast<long>(GetCurrentProcessId()));
    EXPECT_EQ(platform::threadId(), static_cast<long>(GetCurrentThreadId()));
}

TEST(UserName, IsTheAccountOfTheProcessWhateverTheEnvironmentSays) {
    const std::string expected = support::process::accountName();
    ASSERT_FALSE(expected.empty());
    setEnvironment("USERNAME", "another-user");
    EXPECT_EQ(platform::currentWindowsUser(), expected);
}

bool loads(const wchar_t* name) {
    const HMODULE library = LoadLibraryW(name);
    if (library)
        FreeLibrary(library);
    return library != nullptr;
}

TEST(LibrarySearch, FindsNothingInTheCurrentDirectory) {
    wchar_t program[MAX_PATH];
    ASSERT_GT(GetModuleFileNameW(nullptr, program, MAX_PATH), 0u);
    const auto library = std::filesystem::path(program).parent_path() / "libwinpthread-1.dll";
    const auto folder = std::filesystem::temp_directory_path() / "tarn-planted";
    std::filesystem::create_directory(folder);
    std::filesystem::copy_file(library, folder / "tarn_planted.dll",
                               std::filesystem::copy_options::overwrite_existing);
    std::filesystem::current_path(folder);
    EXPECT_TRUE(loads(L"tarn_planted.dll"));
    platform::restrictLibrarySearch();
    EXPECT_FALSE(loads(L"tarn_planted.dll"));
    std::filesystem::current_path(folder.parent_path());
    std::filesystem::remove_all(folder);
}

TEST(SessionFilePrefix, NamesTheFolderAndTheSession) {
    sessionOfProcess = 7;
    const std::string prefix = platform::sessionFilePrefix();
    EXPECT_TRUE(prefix.ends_with("/session-7-")) << prefix;
    sessionOfProcess = 12;
    EXPECT_TRUE(platform::sessionFilePrefix().ends_with("/session-12-"));
    EXPECT_EQ(prefix.find('\\'), std::string::npos) << prefix;
    const std::filesystem::path folder =
        std::filesystem::path(platform::toWide(prefix)).parent_path();
    EXPECT_TRUE(std::filesystem::is_directory(folder)) << prefix;
}

TEST(SessionFilePrefix, IsTheSameWhateverTheEnvironmentSays) {
    const std::string expected = platform::sessionFilePrefix();
    for (const char* variable : {"TEMP", "TMP", "LOCALAPPDATA", "USERPROFILE"})
        setEnvironment(variable, "C:\\elsewhere");
    EXPECT_EQ(platform::sessionFilePrefix(), expected);
}

/// Of the current user; removed at the end of the test.
class Key {
public:
    explicit Key(const wchar_t* path)
        : path_(path) {}
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    ~Key() { RegDeleteTreeW(HKEY_CURRENT_USER, path_); }

    static bool exists(const wchar_t* path) {
        HKEY key = nullptr;
        const bool found =
            RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_READ, &key) == ERROR_SUCCESS;
        RegCloseKey(key);
        return found;
    }

    static void create(const wchar_t* path) {
        HKEY key = nullptr;
        ASSERT_EQ(RegCreateKeyW(HKEY_CURRENT_USER, path, &key), ERROR_SUCCESS);
        RegCloseKey(key);
    }

private:
    const wchar_t* path_;
};

constexpr const wchar_t* ofTheToolkit = L"Software\\QtProject";
constexpr const wchar_t* ofTheDialog = L"Software\\QtProject\\OrganizationDefaults\\FileDialog";

TEST(NoFileDialogHistory, RemovesWhatWasStoredMeanwhile) {
    const Key key(ofTheToolkit);
    ASSERT_FALSE(Key::exists(ofTheToolkit));
    {
        const platform::NoFileDialogHistory none;
        Key::create(ofTheDialog);
    }
    EXPECT_FALSE(Key::exists(ofTheToolkit));
}

TEST(NoFileDialogHistory, ForgetsWhenAskedTo) {
    const Key key(ofTheToolkit);
    platform::NoFileDialogHistory none;
    Key::create(ofTheDialog);
    none.forget();
    EXPECT_FALSE(Key::exists(ofTheToolkit));
}

TEST(NoFileDialogHistory, LeavesWhatOthersHadStored) {
    const Key key(ofTheToolkit);
    Key::create(L"Software\\QtProject\\Other");
    {
        const platform::NoFileDialogHistory none;
        Key::create(ofTheDialog);
    }
    EXPECT_TRUE(Key::exists(L"Software\\QtProject\\Other"));
    EXPECT_FALSE(Key::exists(ofTheDialog));
    Key::create(ofTheDialog);
    { const platform::NoFileDialogHistory none; }
    EXPECT_TRUE(Key::exists(ofTheDialog));
}

TEST(NoFileDialogHistory, LeavesWhatOthersStoreMeanwhile) {
    const Key key(ofTheToolkit);
    {
        const platform::NoFileDialogHistory none;
        Key::create(ofTheDialog);
        Key::create(L"Software\\QtProject\\Other");
    }
    EXPECT_FALSE(Key::exists(L"Software\\QtProject\\OrganizationDefaults"));
    EXPECT_TRUE(Key::exists(L"Software\\QtProject\\Other"));
}

TEST(PluginFolder, IsThatOfTheProgram) {
    const std::filesystem::path folder(platform::toWide(platform::pluginFolder()));
    EXPECT_TRUE(std::filesystem::is_regular_file(folder / "test_platform.exe")) << folder;
}

} // namespace

extern "C" {
decltype(&ProcessIdToSessionId) __imp_ProcessIdToSessionId = getSession;
}
