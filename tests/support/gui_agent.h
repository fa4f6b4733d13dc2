// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <QTest>

#include "simulator/simulator.h"

namespace support {

/// A simulated agent that the client finds as the local agent for the lifetime of this object.
class GuiAgent : public simulator::Simulator {
public:
    explicit GuiAgent(simulator::Options options = {});
    ~GuiAgent();
};

/// Ends the session, if there is one, and resets the process-wide values to their initial state, so
/// that tests don't affect each other.
void resetSession();

} // namespace support

namespace QTest {

/// Printed by a failed comparison of calls.
template <>
char* toString(const std::vector<std::string>& calls);

} // namespace QTest
