// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace simulator {

/// What asks a program without a window to end: a signal, or the close of its console. To be
/// called before any other thread starts.
void expectEndRequest();

/// Waits until it has come.
void waitForEndRequest();

} // namespace simulator
