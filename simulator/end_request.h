// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace simulator {

/// Prepares for a request to end a program without a window: a signal, or closing its console. Call
/// before starting any other thread.
void expectEndRequest();

/// Blocks until the request arrives.
void waitForEndRequest();

} // namespace simulator
