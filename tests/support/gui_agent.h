// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <QTest>

#include "simulator/simulator.h"

namespace support {

/// A simulated agent that the client finds as the agent of its own machine, for as long as this
/// object lives.
class GuiAgent : public simulator::Simulator {
public:
    explicit GuiAgent(simulator::Options options = {});
    ~GuiAgent();
};

/// Ends the session, if there is one, and puts the process-wide values back to what they are at
/// start, so that no test sees another one's.
void resetSession();

} // namespace support

namespace QTest {

/// What a failed comparison of calls prints.
template <>
char* toString(const std::vector<std::string>& calls);

} // namespace QTest
