// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/start_up.h"

#include <memory>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QSettings>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>
#include <QWidget>
#include <QWindow>

#include "app/call_gate.h"
#include "app/even_scale.h"
#include "app/simple_gui_main_window.h"
#include "platform/dark_mode.h"
#include "platform/file_dialog_history.h"
#include "platform/plugin_folder.h"
#include "session/connection.h"
#include "session/integrated_logon.h"
#include "ui/contrast_theme.h"
#include "ui/dark_palette.h"
#include "ui/error_box.h"
#include "ui/file_dialog.h"
#include "ui/outlined_indicators.h"
#include "ui/screen_fit.h"

namespace {

constexpr int timeToAppear = 500;
constexpr int attemptsWhileHidden = 5;
constexpr qint64 largestStyleSheet = qint64(16) * 1024 * 1024;

/// Looking for a style, Qt remembers which plug-ins there are. It would never find the style of
/// Windows, but those of another program: until it reads qt.conf, its own folder is one beside the
/// program's.
void usePluginFolder() {
    const QString folder = QString::fromStdString(platform::pluginFolder());
    if (folder.isEmpty())
        return;
    QCoreApplication::removeLibraryPath(QLibraryInfo::location(QLibraryInfo::PluginsPath));
    QCoreApplication::addLibraryPath(folder);
}

class FirstLogin : public QObject {
public:
    FirstLogin(SimpleGUIMainWindow& window, const app::CallGate* gate,
               std::chrono::milliseconds pause)
        : QObject(&window)
        , window_(window)
        , gate_(gate) {
        timer_.setSingleShot(true);
        timer_.setInterval(pause);
        connect(&timer_, &QTimer::timeout, this, &FirstLogin::retry);
    }

    void run() {
        window_.doLogin(true);
        if (gate_ && gate_->quitRequested())
            return;
        // The return value says less than the session does.
        if (session::connectedToAgent())
            return;
        if (--attempts_ > 0 && !window_.isVisible() && session::integratedLogonAvailable())
            timer_.start();
        else
            window_.doLogin(false);
    }

private:
    void retry() {
        // Meanwhile the user may have opened the window and be logging in.
        if (!session::connectedToAgent() && !QApplication::activeModalWidget())
            run();
    }

    SimpleGUIMainWindow& window_;
    const app::CallGate* gate_;
    QTimer timer_;
    int attempts_ = attemptsWhileHidden;
};

} // namespace

namespace app {

void prepareToolkit() {
    usePluginFolder();
    // If the style is missing, Qt's default stays. The one of Windows is always light.
    if (!QApplication::setStyle(QStringLiteral("plastique")) && platform::needsDarkPalette())
        QApplication::setStyle(QStringLiteral("fusion"));
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // A menu bar shown by the desktop would trigger commands during a call.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    // Don't round 150 % to 200 %: the window wouldn't fit the screen.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    // At the end of the user's session Qt would close the main window, which refuses to, and
    // thereby keep the user logged in.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs,
                                   platform::desktopFileDialogKeepsHistory());
    // Qt's file dialog would keep the last folders in the user's home. Nothing can be written below
    // a path that isn't a folder. On Windows this has no effect: see platform::NoFileDialogHistory.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
    // On X11 Qt looks for OpenGL, which takes time and memory and isn't used here.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
}

void adjustToolkit(QApplication& application) {
    scaleEvenly(application);
    // Qt's default there is the font of Windows 2000. This one is the user's for texts of windows.
    if (QGuiApplication::platformName() == QLatin1String("windows"))
        QApplication::setFont(QApplication::font("QMessageBox"));
    // Qt's option for a style sheet would put a style in front of the one looked at below.
    application.setStyleSheet(QString());
    if (platform::needsDarkPalette())
        ui::useDarkPalette(application);
    ui::completeContrastTheme(application);
    ui::outlineIndicators(application);
}

QString languageOf(const QStringList& arguments) {
    const int option = arguments.indexOf(QStringLiteral("--lang"));
    if (option < 0 || option + 1 >= arguments.size())
        return {};
    const QString& code = arguments.at(option + 1);
    return code == QLatin1String("en") ? QString() : code;
}

bool startsInTray(const QStringList& arguments, bool trayAvailable) {
    return trayAvailable && arguments.contains(QStringLiteral("--tray"));
}

void installTranslation(QApplication& application, const QString& language) {
    if (language.isEmpty())
        return;
    const QString name = QStringLiteral("sg_i18n_%1").arg(language);
    // Empty, but not null: a null text would make Qt try the suffix ".qm" and shorter names.
    const QString none = QLatin1String("");
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(name, none, none, none)) {
        // No translation is available for these two texts.
        ui::showError(nullptr, QStringLiteral("Translation error"),
                      QStringLiteral("Failed to load translation data from %1").arg(name));
        return;
    }
    QApplication::installTranslator(translator.get());
    translator.release()->setParent(&application);
}

void applyStyleSheet(QApplication& application) {
    application.setStyleSheet(QString());
    QFile file(QDir::current().absoluteFilePath(QStringLiteral("tarnmobile.css")));
    // Opening a pipe without a writer, or reading a device, would block forever.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    const QByteArray sheet = file.read(largestStyleSheet + 1);
    if (sheet.size() <= largestStyleSheet)
        application.setStyleSheet(QTextStream(sheet).readAll());
}

void showAtOnce(QWidget& window) {
    window.show();
    QTimer deadline; // its event ends the wait
    deadline.setSingleShot(true);
    deadline.start(timeToAppear);
    while (!window.windowHandle()->isExposed() && deadline.isActive())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::WaitForMoreEvents);
}

void startInTray(SimpleGUIMainWindow& window) {
    window.hideMainWindow();
    // Otherwise Windows would know no window of ours but the tray's, which ignores the end of the
    // desktop session.
    window.winId();
}

void logOut(CallGate& gate) {
    gate.leaveSilentAgents();
    session::disconnectFromAgent();
}

void logOutAtQuit(QCoreApplication& application, CallGate& gate) {
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &gate, [&gate] {
        ui::rejectFileDialogs();
        // A call that runs now ends by itself when the event loops do.
        if (gate.waiting())
            gate.leaveSilentAgents();
        else
            logOut(gate);
    });
}

void logInAtStart(SimpleGUIMainWindow& window, const CallGate* gate,
                  std::chrono::milliseconds pause) {
    (new FirstLogin(window, gate, pause))->run();
}

int runLoggedIn(SimpleGUIMainWindow& window, const CallGate& gate) {
    // The loop ignores a quit from before its start, so the login is the first thing it runs.
    QTimer::singleShot(0, &window, [&] { logInAtStart(window, &gate); });
    return QApplication::exec();
}

} // namespace app
