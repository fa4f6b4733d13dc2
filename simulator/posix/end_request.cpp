// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/end_request.h"

#include <csignal>

namespace simulator {

namespace {

sigset_t endSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    return signals;
}

} // namespace

// The main thread takes the signals with `sigwait`, so every thread must block them.
void expectEndRequest() {
    const sigset_t signals = endSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

void waitForEndRequest() {
    const sigset_t signals = endSignals();
    int received = 0;
    sigwait(&signals, &received);
}

} // namespace simulator
