// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/end_request.h"

#include <windows.h>

namespace simulator {

namespace {

HANDLE requested = nullptr;

BOOL WINAPI takeRequest(DWORD) {
    return SetEvent(requested);
}

} // namespace

void expectEndRequest() {
    requested = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    SetConsoleCtrlHandler(takeRequest, TRUE);
}

void waitForEndRequest() {
    WaitForSingleObject(requested, INFINITE);
}

} // namespace simulator
