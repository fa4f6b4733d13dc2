// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <vector>

#include <gmock/gmock.h>
#include <windows.h>

#include "platform/foreground.h"

namespace {

std::vector<DWORD> allowed;

BOOL WINAPI allow(DWORD process) {
    allowed.push_back(process);
    return TRUE;
}

TEST(Foreground, IsPassedToAnyProcess) {
    platform::allowSetForeground();
    EXPECT_THAT(allowed, testing::ElementsAre(ASFW_ANY));
}

} // namespace

extern "C" {
decltype(&AllowSetForegroundWindow) __imp_AllowSetForegroundWindow = allow;
}
