// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The main window with a session with the agent at the port of its argument. It refreshes itself
// without user input. Writes a line when it is ready.

#include <cstdio>
#include <string>

#include <QApplication>

#include "app/call_gate.h"
#include "app/simple_gui_main_window.h"
#include "app/start_up.h"
#include "resources/pictures.h"
#include "session/connection.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: connected_window PORT\n", stderr);
        return 2;
    }
    app::prepareToolkit();
    QApplication application(argc, argv);
    app::adjustToolkit(application);
    resources::initPictures();
    app::CallGate gate;
    SimpleGUIMainWindow window;
    window.keepAliveBy(gate);
    app::showAtOnce(window);
    session::connectToAgent(std::string("127.0.0.1:") + argv[1], "demo", "demo", 1);
    window.refreshAll();
    std::puts("ready");
    std::fflush(stdout);
    return QApplication::exec();
}
