// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/gui_agent.h"

#include "session/connection.h"
#include "tests/support/gui_port_redirect.h"
#include "tests/support/security_operations_override.h"

namespace support {

GuiAgent::GuiAgent(simulator::Options options)
    : Simulator(std::move(options)) {
    leaveOutSystemSecurity();
    redirectLocalAgent(port());
}

GuiAgent::~GuiAgent() {
    redirectLocalAgent(0);
}

void resetSession() {
    session::disconnectFromAgent();
    session::g_clientType = 0;
    session::g_isMobileClient = false;
    session::g_isNotebookClient = false;
    session::g_isCentrallyManaged = false;
    session::g_is2FAEnabled = false;
    session::g_currentUser.clear();
    session::g_language.clear();
}

} // namespace support

template <>
char* QTest::toString(const std::vector<std::string>& calls) {
    QByteArray text;
    for (const std::string& call : calls)
        text += "\n      " + QByteArray::fromStdString(call);
    return qstrdup(text.constData());
}
