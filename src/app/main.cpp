// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/call_gate.h"
#include "app/qt_single_application.h"
#include "app/simple_gui_main_window.h"
#include "app/start_up.h"
#include "base/product.h"
#include "platform/file_dialog_history.h"
#include "platform/foreground.h"
#include "platform/library_search.h"
#include "platform/standard_streams.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "transport/pending_reply.h"
#include "ui/screen_fit.h"

namespace {

constexpr int answerTime = 5000;

/// Settings that must be made before the application object exists.
void prepareApplication() {
    platform::restrictLibrarySearch();
    platform::fillStandardStreams();
    platform::allowSetForeground();
    app::prepareToolkit();
}

int runWindow(QtSingleApplication& application) {
    app::CallGate gate;
    SimpleGUIMainWindow window;
    window.keepAliveBy(gate);
    if (app::startsInTray(QCoreApplication::arguments()))
        app::startInTray(window);
    else
        app::showAtOnce(window);
    app::logOutAtQuit(application, gate);
    QObject::connect(&application, &QtSingleApplication::messageReceived, &window,
                     &SimpleGUIMainWindow::showMainWindow);
    const int status = app::runLoggedIn(window, gate);
    app::logOut(gate);
    return status;
}

int run(int argc, char** argv) {
    prepareApplication();
    QtSingleApplication application(argc, argv);
    app::adjustToolkit(application);
    QGuiApplication::setDesktopFileName(QLatin1String(product::applicationId));
    resources::initPictures();
    ui::keepWindowsOnScreen(application);
    app::applyStyleSheet(application);
    if (application.sendMessage(QString(), answerTime))
        return 0;
    platform::NoFileDialogHistory noHistory;
    QObject::connect(&application, &QCoreApplication::aboutToQuit, [&] { noHistory.forget(); });
    session::g_language = app::languageOf(QCoreApplication::arguments());
    app::installTranslation(application, session::g_language);
    return runWindow(application);
}

} // namespace

int main(int argc, char** argv) {
    hessiancln::exitProcess(run(argc, argv));
}
