// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/file_dialog_history.h"

#include <array>

#include <windows.h>

namespace platform {

namespace {

/// The keys of the registry, each below the one before; the last is the dialog's own.
constexpr std::array keys{L"Software\\QtProject", L"Software\\QtProject\\OrganizationDefaults",
                          L"Software\\QtProject\\OrganizationDefaults\\FileDialog"};

bool exists(const wchar_t* path) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

/// Other programs store below the same keys.
bool isEmpty(const wchar_t* path) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    DWORD keysBelow = 0;
    DWORD values = 0;
    const LSTATUS status = RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &keysBelow, nullptr,
                                            nullptr, &values, nullptr, nullptr, nullptr, nullptr);
    RegCloseKey(key);
    return status == ERROR_SUCCESS && keysBelow == 0 && values == 0;
}

} // namespace

struct NoFileDialogHistory::Found {
    /// The keys from here on didn't exist.
    std::size_t firstMissing = 0;
};

NoFileDialogHistory::NoFileDialogHistory()
    : found_(std::make_unique<Found>()) {
    while (found_->firstMissing < keys.size() && exists(keys[found_->firstMissing]))
        ++found_->firstMissing;
}

NoFileDialogHistory::~NoFileDialogHistory() {
    forget();
}

void NoFileDialogHistory::forget() {
    if (found_->firstMissing == keys.size())
        return;
    RegDeleteTreeW(HKEY_CURRENT_USER, keys.back());
    for (std::size_t next = keys.size() - 1; next-- > found_->firstMissing && isEmpty(keys[next]);)
        RegDeleteKeyW(HKEY_CURRENT_USER, keys[next]);
}

bool desktopFileDialogKeepsHistory() {
    return false;
}

} // namespace platform
