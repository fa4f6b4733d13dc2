// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>

#include <QString>
#include <QStringList>
#include <QSystemTrayIcon>

class QApplication;
class QCoreApplication;
class QWidget;
class SimpleGUIMainWindow;

/// The steps of start-up up to the event loop.
namespace app {

class CallGate;

/// Sets what Qt reads while the application object is created: style, scaling by any factor, and no
/// search for OpenGL. The toolkit's own dialogs keep no settings.
void prepareToolkit();

/// Sets what needs the application object and no window: even scaling, the palette of a dark
/// desktop that has none for the toolkit, missing colours of a contrast theme, and frames of check
/// boxes that can be seen.
void adjustToolkit(QApplication& application);

/// The language code after the first "--lang". Empty for the built-in English: without such an
/// option, without a value, and for the code "en".
QString languageOf(const QStringList& arguments);

/// Whether the window stays hidden at first: there is a tray to show it from, and the arguments
/// contain "--tray", as in an autostart by the desktop.
bool startsInTray(const QStringList& arguments,
                  bool trayAvailable = QSystemTrayIcon::isSystemTrayAvailable());

/// Installs the translation file for `language` from the current directory, for the rest of the
/// process. If it is missing, shows an error box, and the texts stay English.
void installTranslation(QApplication& application, const QString& language);

/// Uses "tarnmobile.css" in the current directory as the style sheet, if it exists.
void applyStyleSheet(QApplication& application);

/// Shows `window`, no larger than its screen, and returns when it has been painted, or after half a
/// second if the desktop doesn't show it. The next step may block while an agent doesn't answer.
/// Doesn't process input.
void showAtOnce(QWidget& window);

/// Hides `window` from its first moment on. The system can address it nevertheless, for example
/// with the end of the desktop session.
void startInTray(SimpleGUIMainWindow& window);

/// Logs out of the agent.
void logOut(CallGate& gate);

/// Logs out as soon as the application is about to quit. At the end of the desktop session, some
/// systems kill a process right after that.
void logOutAtQuit(QCoreApplication& application, CallGate& gate);

/// Tries the agent on this machine first, and asks the user if that didn't start a session. If
/// that fails too, the window stays disconnected. With `gate`, quitting during the first login
/// skips the second.
///
/// When the user has just logged on to the system, agent and network may not be ready. So if the
/// window is hidden and a logon without a password is possible, returns after the first attempt,
/// makes four more with `pause` in between, and only then asks the user.
void logInAtStart(SimpleGUIMainWindow& window, const CallGate* gate = nullptr,
                  std::chrono::milliseconds pause = std::chrono::seconds(15));

/// Logs in as above, then runs the event loop to its end and returns its status. A quit during the
/// login dialog, for example from the tray, ends both.
int runLoggedIn(SimpleGUIMainWindow& window, const CallGate& gate);

} // namespace app
