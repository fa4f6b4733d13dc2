// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/file_dialog_history.h"

#include <windows.h>

namespace platform {

namespace {

/// The keys of the registry, each below the one before.
constexpr const wchar_t* keys[] = {L"Software\\QtProject",
                                   L"Software\\QtProject\\OrganizationDefaults",
                                   L"Software\\QtProject\\OrganizationDefaults\\FileDialog"};

bool exists(const wchar_t* path) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

} // namespace

struct NoFileDialogHistory::Found {
    const wchar_t* firstMissing = nullptr;
};

NoFileDialogHistory::NoFileDialogHistory()
    : found_(std::make_unique<Found>()) {
    for (const wchar_t* key : keys) {
        if (!exists(key)) {
            found_->firstMissing = key;
            return;
        }
    }
}

NoFileDialogHistory::~NoFileDialogHistory() {
    forget();
}

void NoFileDialogHistory::forget() {
    if (found_->firstMissing)
        RegDeleteTreeW(HKEY_CURRENT_USER, found_->firstMissing);
}

bool desktopFileDialogKeepsHistory() {
    return false;
}

} // namespace platform
