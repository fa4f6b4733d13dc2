// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/dark_mode.h"

#include <windows.h>

namespace platform {

namespace {

bool isContrastThemeOn() {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON);
}

/// The default of Windows is light.
bool areAppsDark() {
    DWORD light = 1;
    DWORD size = sizeof light;
    return RegGetValueW(HKEY_CURRENT_USER,
                        L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                        L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &light,
                        &size) == ERROR_SUCCESS &&
           light == 0;
}

} // namespace

bool needsDarkPalette() {
    return areAppsDark() && !isContrastThemeOn();
}

} // namespace platform
