// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <chrono>
#include <string>
#include <utility>

#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QStyle>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <QWidget>

#include "app/call_gate.h"
#include "app/login_check.h"
#include "app/simple_gui_main_window.h"
#include "app/start_up.h"
#include "platform/dark_mode.h"
#include "platform/plugin_folder.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "session/process_values.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_translation.h"
#include "tests/support/gui_wait.h"
#include "ui/dark_palette.h"
#include "ui/size_text.h"

using namespace std::chrono_literals;

namespace {

bool systemNeedsDarkPalette = false;
std::string folderOfPlugins;

} // namespace

/// Instead of the system's.
bool platform::needsDarkPalette() {
    return systemNeedsDarkPalette;
}
std::string platform::pluginFolder() {
    return folderOfPlugins;
}

namespace {

void write(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("Can't write %s", qPrintable(name));
}

/// As Qt does at the end of the desktop session, and of the event loop.
void announceQuit() {
    QVERIFY(QMetaObject::invokeMethod(qApp, "aboutToQuit"));
}

class PaintCount : public QWidget {
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++paints; }
};

} // namespace

class StartUpTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() {
        directory_ = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(directory_->path()));
    }
    void cleanup() {
        qApp->setStyleSheet(QString());
        QDir::setCurrent(QDir::rootPath());
        directory_.reset();
    }

    void theToolkitScalesByAnyFactorAndLooksForNoOpenGl() {
        QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
            Qt::HighDpiScaleFactorRoundingPolicy::Round);
        qunsetenv("QT_XCB_GL_INTEGRATION");
        app::prepareToolkit();
        QCOMPARE(QGuiApplication::highDpiScaleFactorRoundingPolicy(),
                 Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
        QCOMPARE(qgetenv("QT_XCB_GL_INTEGRATION"), QByteArray("none"));
        qputenv("QT_XCB_GL_INTEGRATION", "xcb_glx");
        app::prepareToolkit();
        QCOMPARE(qgetenv("QT_XCB_GL_INTEGRATION"), QByteArray("xcb_glx"));
        qunsetenv("QT_XCB_GL_INTEGRATION");
    }

    void aDarkSystemWithoutAPaletteGetsOneWithTheStyleForIt() {
        const QString style = QApplication::style()->objectName();
        QApplication::setStyle(QStringLiteral("windows"));
        systemNeedsDarkPalette = true;
        app::prepareToolkit();
        app::adjustToolkit(*qApp);
        const QString styleOnDark = QApplication::style()->objectName();
        const QPalette paletteOnDark = QApplication::palette();
        systemNeedsDarkPalette = false;
        QApplication::setPalette(QPalette());
        QApplication::setStyle(style);
        QCOMPARE(styleOnDark, QStringLiteral("fusion"));
        QCOMPARE(paletteOnDark.color(QPalette::Window), ui::darkPalette().color(QPalette::Window));
    }

    void anyOtherSystemKeepsItsPaletteAndStyle() {
        const QString style = QApplication::style()->objectName();
        QApplication::setStyle(QStringLiteral("windows"));
        const QPalette before = QApplication::palette();
        app::prepareToolkit();
        app::adjustToolkit(*qApp);
        const QString after = QApplication::style()->objectName();
        const QPalette paletteAfter = QApplication::palette();
        QApplication::setStyle(style);
        QCOMPARE(after, QStringLiteral("windows"));
        QCOMPARE(paletteAfter, before);
    }

    void aStyleSheetByOptionHidesNoStyle() {
        const QString style = QApplication::style()->objectName();
        QApplication::setStyle(QStringLiteral("fusion"));
        QApplication::setPalette(ui::darkPalette());
        qApp->setStyleSheet(QStringLiteral("QLabel { color: red }"));
        app::adjustToolkit(*qApp);
        app::applyStyleSheet(*qApp);
        const QString after = QApplication::style()->objectName();
        const QBrush rows = QApplication::palette().alternateBase();
        QApplication::setPalette(QPalette());
        QApplication::setStyle(style);
        QCOMPARE(after, QStringLiteral("fusion"));
        QCOMPARE(rows, ui::darkPalette().alternateBase());
    }

    void aKnownFolderOfPlugInsReplacesTheOneOfQt() {
        const QStringList before = QCoreApplication::libraryPaths();
        app::prepareToolkit();
        QCOMPARE(QCoreApplication::libraryPaths(), before);
        folderOfPlugins = directory_->path().toStdString();
        app::prepareToolkit();
        const QStringList after = QCoreApplication::libraryPaths();
        QCoreApplication::setLibraryPaths(before);
        folderOfPlugins.clear();
        QVERIFY(after.contains(QDir(directory_->path()).canonicalPath()));
        QVERIFY(!after.contains(QLibraryInfo::location(QLibraryInfo::PluginsPath)));
    }

    void startsInTheTrayOnlyIfAskedAndThereIsOne() {
        const QString program = QStringLiteral("tarn-mobile-user");
        const QString option = QStringLiteral("--tray");
        QVERIFY(app::startsInTray({program, option}, true));
        QVERIFY(app::startsInTray({program, QStringLiteral("--lang"), QStringLiteral("de"), option},
                                  true));
        QVERIFY(!app::startsInTray({program, option}, false));
        QVERIFY(!app::startsInTray({program}, true));
        QVERIFY(!app::startsInTray({program, QStringLiteral("--tray=1")}, true));
    }

    void findsTheLanguage_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("language");
        const QString program = QStringLiteral("tarn-mobile-user");
        const QString option = QStringLiteral("--lang");
        const QString de = QStringLiteral("de");
        QTest::newRow("no option") << QStringList{program} << QString();
        QTest::newRow("a code") << QStringList{program, option, de} << de;
        QTest::newRow("last argument") << QStringList{program, option} << QString();
        QTest::newRow("en is the built-in English")
            << QStringList{program, option, QStringLiteral("en")} << QString();
        QTest::newRow("EN is a code like any other")
            << QStringList{program, option, QStringLiteral("EN")} << QStringLiteral("EN");
        QTest::newRow("the first of two")
            << QStringList{program, option, de, option, QStringLiteral("fr")} << de;
        QTest::newRow("the option as the code of the option")
            << QStringList{program, option, option, de} << option;
        QTest::newRow("among others")
            << QStringList{program, QStringLiteral("-x"), option, de, QStringLiteral("y")} << de;
        QTest::newRow("not the exact option")
            << QStringList{program, QStringLiteral("--lang=de"), QStringLiteral("--LANG"), de}
            << QString();
    }
    void findsTheLanguage() {
        QFETCH(QStringList, arguments);
        QTEST(app::languageOf(arguments), "language");
    }

    void installsATranslationFromTheCurrentDirectory() {
        QVERIFY(QFile::copy(support::translationFile(QStringLiteral("de")),
                            QStringLiteral("sg_i18n_de")));
        support::ModalDriver modals;
        app::installTranslation(*qApp, QStringLiteral("de"));
        QVERIFY(modals.done());
        QCOMPARE(QCoreApplication::translate("LoginCheck", "Login"), QStringLiteral("Anmeldung"));
        delete qApp->findChild<QTranslator*>();
        QCOMPARE(QCoreApplication::translate("LoginCheck", "Login"), QStringLiteral("Login"));
    }

    void aTranslationWritesSizesAsTheLocaleDoes() {
        QVERIFY(QFile::copy(support::translationFile(QStringLiteral("de")),
                            QStringLiteral("sg_i18n_de")));
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German));
        app::installTranslation(*qApp, QStringLiteral("de"));
        QCOMPARE(ui::sizeToString(1536), QStringLiteral("1,50 KB"));
        QCOMPARE(ui::sizeToString(1.5 * 1024 * 1024), QStringLiteral("1,50 MB"));
        QCOMPARE(ui::sizeToString(1.5 * 1024 * 1024 * 1024), QStringLiteral("1,50 GB"));
        delete qApp->findChild<QTranslator*>();
        QLocale::setDefault(before);
    }

    void reportsThatATranslationIsMissing() { expectTranslationError(QStringLiteral("EN")); }

    void takesNoFileOfAnotherName() {
        // Names that Qt would try on its own: with a suffix, and cut at the underscores.
        for (const char* name : {"sg_i18n_de.qm", "sg_i18n", "sg_i18n.qm", "sg", "sg.qm"})
            QVERIFY(QFile::copy(support::translationFile(QStringLiteral("de")),
                                QString::fromLatin1(name)));
        expectTranslationError(QStringLiteral("de"));
    }

    void reportsThatATranslationIsDamaged() {
        write(QStringLiteral("sg_i18n_de"), "not a translation");
        expectTranslationError(QStringLiteral("de"));
    }

    void needsNoFileForEnglish() {
        support::ModalDriver modals;
        app::installTranslation(*qApp, QString());
        QVERIFY(modals.done());
    }

    void takesNoStyleSheetThatIsNoFile_data() {
        QTest::addColumn<QString>("target");
        QTest::newRow("a folder") << QString();
        const QString endless = QStringLiteral("/dev/zero");
        if (QFile::exists(endless))
            QTest::newRow("a device without end") << endless;
    }
    void takesNoStyleSheetThatIsNoFile() {
        QFETCH(QString, target);
        const QString name = QStringLiteral("tarnmobile.css");
        QVERIFY(target.isEmpty() ? QDir().mkdir(name) : QFile::link(target, name));
        app::applyStyleSheet(*qApp);
        QCOMPARE(qApp->styleSheet(), QString());
    }

    void takesNoStyleSheetOfMoreThan16Mebibytes() {
        write(QStringLiteral("tarnmobile.css"), QByteArray(16 * 1024 * 1024 + 1, ' '));
        app::applyStyleSheet(*qApp);
        QCOMPARE(qApp->styleSheet(), QString());
    }

    void takesTheStyleSheet() {
        write(QStringLiteral("tarnmobile.css"), "QLabel { color: red; }");
        app::applyStyleSheet(*qApp);
        QCOMPARE(qApp->styleSheet(), QStringLiteral("QLabel { color: red; }"));
    }

    void anEmptyFileGivesAnEmptyStyleSheet() {
        write(QStringLiteral("tarnmobile.css"), "");
        qApp->setStyleSheet(QStringLiteral("QLabel { color: red; }"));
        app::applyStyleSheet(*qApp);
        QCOMPARE(qApp->styleSheet(), QString());
    }

    void noFileGivesAnEmptyStyleSheet() {
        qApp->setStyleSheet(QStringLiteral("QLabel { color: red; }"));
        app::applyStyleSheet(*qApp);
        QCOMPARE(qApp->styleSheet(), QString());
    }

    void aFileThatCantBeOpenedGivesAnEmptyStyleSheet() {
        QVERIFY(QDir().mkdir(QStringLiteral("tarnmobile.css")));
        support::ModalDriver modals;
        app::applyStyleSheet(*qApp);
        QVERIFY(modals.done());
        QCOMPARE(qApp->styleSheet(), QString());
    }

    void theWindowIsPaintedBeforeALoginBlocks() {
        PaintCount window;
        app::showAtOnce(window);
        QVERIFY(window.isVisible());
        QVERIFY(window.paints > 0);
    }

    void theSystemKnowsAWindowThatStartsInTheTray() {
        SimpleGUIMainWindow window;
        app::startInTray(window);
        QVERIFY(!window.isVisible());
        QVERIFY(window.internalWinId() != 0);
    }

    void aHiddenWindowComesOutToAskForAPassword() {
        SimpleGUIMainWindow window;
        support::ModalDriver modals;
        modals.expect(QStringLiteral("login"), support::isDialog<LoginCheck>, [&](QWidget& dialog) {
            QVERIFY(window.isVisible());
            QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("buttonQuit")),
                              Qt::LeftButton);
        });
        app::startInTray(window);
        app::logInAtStart(window);
        QVERIFY(modals.done());
    }

    void logsOutBeforeTheEventLoopEnds() {
        support::GuiAgent agent;
        support::MainWindowDriver driver;
        app::CallGate gate;
        app::logOutAtQuit(*qApp, gate);
        driver.logIn(agent);
        QVERIFY(session::connectedToAgent());
        announceQuit();
        QVERIFY(!session::connectedToAgent());
        QCOMPARE(support::methodsOf(agent), std::vector<std::string>{"logout"});
    }

    void aQuitDuringACallLeavesASilentAgentAndMakesNoOtherCall() {
        support::GuiAgent agent;
        support::MainWindowDriver driver;
        app::CallGate gate({20ms, 60ms});
        app::logOutAtQuit(*qApp, gate);
        driver.window().keepAliveBy(gate);
        driver.logIn(agent);
        agent.inject("getTarnClientInfo", simulator::Silence{});
        bool announced = false;
        const support::InTheWait user([&] {
            if (!std::exchange(announced, true))
                announceQuit();
        });
        driver.beat();
        QVERIFY(announced);
        QVERIFY(!session::connectedToAgent());
        for (const std::string& method : support::methodsOf(agent))
            QVERIFY(method.find("logout") == std::string::npos);
    }

    void aQuitDuringTheLoginEndsTheProgram() {
        // There is no agent, so the login dialog opens.
        const app::CallGate gate;
        SimpleGUIMainWindow window;
        QTimer quit;
        connect(&quit, &QTimer::timeout, [&] {
            if (qobject_cast<LoginCheck*>(QApplication::activeModalWidget()))
                window.OnQuit();
        });
        quit.start(10);
        bool hung = false;
        QTimer::singleShot(10'000, [&] {
            hung = true;
            quit.stop();
            QApplication::closeAllWindows();
            QCoreApplication::quit();
        });
        QCOMPARE(app::runLoggedIn(window, gate), 0);
        QVERIFY(!hung);
        QVERIFY(!QApplication::activeModalWidget());
        QVERIFY(!session::connectedToAgent());
    }

private:
    void expectTranslationError(const QString& code) {
        support::ModalDriver modals;
        modals.expectErrorBox(QStringLiteral("Translation error"),
                              QStringLiteral("Failed to load translation data from sg_i18n_") +
                                  code);
        app::installTranslation(*qApp, code);
        QVERIFY(modals.done());
        QVERIFY(!qApp->findChild<QTranslator*>());
    }

    std::unique_ptr<QTemporaryDir> directory_;
};

QTEST_MAIN(StartUpTest)
#include "start_up_test.moc"
