// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace support {

/// The client looks for the local agent at a fixed port. In a program that links this, a connect to
/// that port of 127.0.0.1 goes to `port` instead; it is refused while `port` is 0, the initial
/// value. Thus the client is tested unmodified, on a port that the system picked, and never meets
/// an agent that happens to run.
void redirectLocalAgent(std::uint16_t port);

} // namespace support
