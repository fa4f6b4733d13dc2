// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Takes pictures of the main window with a simulated agent behind it. Best on a real display:
//   xvfb-run -s "-screen 0 1600x1000x24" take_pictures docs/pictures
#include <cstdio>

#include <QApplication>
#include <QDir>
#include <QTabWidget>
#include <QTableView>
#include <QTranslator>

#include "resources/pictures.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"

namespace {

using support::child;

/// An agent whose work goes by so fast that a few seconds show some progress.
simulator::Options fastAgent() {
    simulator::Options options;
    options.speed = 60;
    return options;
}

void save(QWidget& window, const QDir& folder, const QString& name) {
    QTest::qWait(100);
    if (!window.grab().save(folder.filePath(name + QStringLiteral(".png"))))
        std::fprintf(stderr, "Can't write %s\n", qPrintable(name));
}

void takePictures(const QDir& folder) {
    support::GuiAgent agent(fastAgent());
    support::MainWindowDriver driver;
    driver.window().doLogin(true);
    driver.sets().selectRow(0);
    QTest::qWait(3000);
    driver.beat();
    save(driver.window(), folder, QStringLiteral("main-window"));
    child<QTabWidget>(driver.window(), "tabWidget").setCurrentIndex(1);
    save(driver.window(), folder, QStringLiteral("activity-log"));
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    resources::initPictures();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr, "Usage: take_pictures <folder> [<translation file>]\n");
        return 2;
    }
    QTranslator translator;
    const QString none = QLatin1String("");
    if (arguments.size() > 2 && translator.load(arguments.at(2), none, none, none))
        QCoreApplication::installTranslator(&translator);
    takePictures(QDir(arguments.at(1)));
    return 0;
}
