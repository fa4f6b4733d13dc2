// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/call_passage.h"

#include <cassert>

#include "transport/invoke_exception.h"

namespace hessiancln {

namespace {

thread_local bool inCall = false;
thread_local WaitHook* installedHook = nullptr;

} // namespace

WaitHookInstallation::WaitHookInstallation(WaitHook& hook) {
    assert(!installedHook);
    installedHook = &hook;
}

WaitHookInstallation::~WaitHookInstallation() {
    installedHook = nullptr;
}

CallPassage::CallPassage() {
    refuseInside();
    inCall = true;
}

void CallPassage::refuseInside() {
    assert(!inCall && "a call inside a call");
    if (inCall)
        throw invoke_exception("Another call to the agent is still under way");
}

CallPassage::~CallPassage() {
    inCall = false;
}

bool CallPassage::underWay() {
    return inCall;
}

WaitHook* CallPassage::hook() {
    return installedHook;
}

} // namespace hessiancln
