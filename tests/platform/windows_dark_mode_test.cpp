// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>
#include <windows.h>

#include "platform/dark_mode.h"

namespace {

bool contrastIsKnown = true;
DWORD contrastFlags = 0;

BOOL WINAPI getContrast(UINT action, UINT size, void* result, UINT) {
    EXPECT_EQ(action, UINT{SPI_GETHIGHCONTRAST});
    EXPECT_EQ(size, sizeof(HIGHCONTRASTW));
    auto& contrast = *static_cast<HIGHCONTRASTW*>(result);
    EXPECT_EQ(contrast.cbSize, sizeof contrast);
    if (contrastIsKnown)
        contrast.dwFlags = contrastFlags;
    return contrastIsKnown;
}

/// Replaces the user's registry by an empty key below it, for this process.
class EmptyRegistry {
public:
    EmptyRegistry() {
        RegCreateKeyW(HKEY_CURRENT_USER, path, &key_);
        RegOverridePredefKey(HKEY_CURRENT_USER, key_);
    }
    EmptyRegistry(const EmptyRegistry&) = delete;
    EmptyRegistry& operator=(const EmptyRegistry&) = delete;
    ~EmptyRegistry() {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegCloseKey(key_);
        RegDeleteTreeW(HKEY_CURRENT_USER, path);
    }

    template <class Value>
    void setAppsUseLightTheme(DWORD type, const Value& value) {
        ASSERT_EQ(
            RegSetKeyValueW(HKEY_CURRENT_USER,
                            L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                            L"AppsUseLightTheme", type, &value, sizeof value),
            ERROR_SUCCESS);
    }

private:
    static constexpr const wchar_t* path = L"Software\\TarnMobileTest";
    HKEY key_ = nullptr;
};

TEST(DarkMode, IsTheColourModeOfApps) {
    EmptyRegistry registry;
    EXPECT_FALSE(platform::needsDarkPalette());
    registry.setAppsUseLightTheme(REG_DWORD, DWORD{0});
    EXPECT_TRUE(platform::needsDarkPalette());
    registry.setAppsUseLightTheme(REG_DWORD, DWORD{1});
    EXPECT_FALSE(platform::needsDarkPalette());
}

TEST(DarkMode, IsOffIfTheValueIsNoNumber) {
    EmptyRegistry registry;
    registry.setAppsUseLightTheme(REG_SZ, L"0");
    EXPECT_FALSE(platform::needsDarkPalette());
    registry.setAppsUseLightTheme(REG_BINARY, '\0');
    EXPECT_FALSE(platform::needsDarkPalette());
}

TEST(DarkMode, IsOffInAContrastTheme) {
    EmptyRegistry registry;
    registry.setAppsUseLightTheme(REG_DWORD, DWORD{0});
    contrastFlags = HCF_AVAILABLE | HCF_HIGHCONTRASTON;
    EXPECT_FALSE(platform::needsDarkPalette());
    contrastFlags = HCF_AVAILABLE;
    EXPECT_TRUE(platform::needsDarkPalette());
}

TEST(DarkMode, IsThatOfAppsIfTheContrastThemeIsUnknown) {
    EmptyRegistry registry;
    registry.setAppsUseLightTheme(REG_DWORD, DWORD{0});
    contrastIsKnown = false;
    EXPECT_TRUE(platform::needsDarkPalette());
    contrastIsKnown = true;
}

} // namespace

extern "C" {
decltype(&SystemParametersInfoW) __imp_SystemParametersInfoW = getContrast;
}
